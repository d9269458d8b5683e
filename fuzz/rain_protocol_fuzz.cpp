// SPDX-License-Identifier: MIT
/// Output of the rain database's reader: arbitrary bytes must be refused, or be exactly the encoded text of
/// the table that they decode to.
#include <cmath>
#include <cstdint>
#include <string>

#include "data/rain_protocol.h"
#include "support/require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using mero::fuzz::require;
    const std::string text(data, data + size);
    const auto table = mero::data::decode(text);
    if (!table) {
        return 0;
    }
    for (const auto& row : table->rows) {
        require(row.size() == table->columns.size(), "every row has all fields");
        for (const auto& value : row) {
            require(!value || std::isfinite(*value), "every value is finite");
        }
    }
    const auto again = mero::data::encode(*table);
    require(again && *again == text, "a table that was read writes the same text");
    return 0;
}
