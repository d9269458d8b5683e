// SPDX-License-Identifier: MIT
/// Writes and reads the lines between `mero-rain` and the rain database.
/// Reading is strict: a text that encode() would not write is refused.
#include "data/rain_protocol.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::data {
namespace {

constexpr std::string_view kFirstLine = "mero-rain 1";
constexpr std::size_t kMostColumns = 255;  // the limit of the database's tables
constexpr std::size_t kMostRows = std::numeric_limits<std::int16_t>::max();

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
}

bool isName(std::string_view name) {
    return !name.empty() && std::none_of(name.begin(), name.end(), isControl);
}

bool namesAreDistinct(const StationTable& table) {
    for (std::size_t column = 0; column < table.columns.size(); ++column) {
        if (columnIndex(table, table.columns[column]) != column) {
            return false;
        }
    }
    return true;
}

bool isFinite(const StationTable::Value& value) {
    return !value || std::isfinite(*value);
}

bool isSendable(const StationTable& table) {
    if (table.columns.empty() || table.columns.size() > kMostColumns || table.rows.size() > kMostRows) {
        return false;
    }
    if (!std::all_of(table.columns.begin(), table.columns.end(), isName) || !namesAreDistinct(table)) {
        return false;
    }
    return std::all_of(table.rows.begin(), table.rows.end(), [&](const auto& row) {
        return row.size() == table.columns.size() && std::all_of(row.begin(), row.end(), isFinite);
    });
}

std::string count(std::size_t number) {
    return numbers::general(static_cast<int>(number));
}

/// Parses the text from front to back; after a failed step all later steps fail.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    /// The rest of the next line, which must begin with `start`.
    std::optional<std::string_view> after(std::string_view start) {
        const std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos || !rest_.substr(0, end).starts_with(start)) {
            return std::nullopt;
        }
        const std::string_view found = rest_.substr(start.size(), end - start.size());
        rest_.remove_prefix(end + 1);
        return found;
    }

    /// A whole number from 0 to `most` after `start`.
    std::optional<std::size_t> countAfter(std::string_view start, std::size_t most) {
        const auto text = after(start);
        if (!text || text->size() > 5 || text->find_first_not_of("0123456789") != std::string_view::npos) {
            return std::nullopt;
        }
        const auto number = static_cast<std::size_t>(numbers::leadingNumber(*text));
        return number <= most && count(number) == *text ? std::optional(number) : std::nullopt;
    }

    [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  private:
    std::string_view rest_;
};

/// @return false when the text is neither empty nor a number as encode() writes it
bool decodeValue(std::string_view text, StationTable::Value& value) {
    if (text.empty()) {
        value = std::nullopt;
        return true;
    }
    try {
        value = numbers::leadingNumber(text);
    } catch (const RuntimeError&) {  // larger than a double
        return false;
    }
    return numbers::general(*value) == text;
}

bool decodeRow(std::string_view text, std::size_t columns, std::vector<StationTable::Value>& row) {
    while (!text.empty() && text.front() == '\t') {
        text.remove_prefix(1);
        const std::string_view field = text.substr(0, text.find('\t'));
        text.remove_prefix(field.size());
        if (!decodeValue(field, row.emplace_back())) {
            return false;
        }
    }
    return text.empty() && row.size() == columns;
}

}  // namespace

std::optional<std::string> encode(const StationTable& table) {
    if (!isSendable(table)) {
        return std::nullopt;
    }
    std::string text{kFirstLine};
    text += "\ndemonstration " + count(table.demonstration ? 1 : 0);
    text += "\ncolumns " + count(table.columns.size());
    for (const std::string& name : table.columns) {
        text += "\ncolumn " + name;
    }
    text += "\nrows " + count(table.rows.size());
    for (const auto& row : table.rows) {
        text += "\nrow";
        for (const StationTable::Value& value : row) {
            text += '\t';
            text += value ? numbers::general(*value) : std::string();
        }
    }
    text += "\nend " + count(table.rows.size()) + "\n";
    return text;
}

std::optional<StationTable> decode(std::string_view text) {
    LineReader lines(text);
    StationTable table;
    if (lines.after(kFirstLine) != std::string_view()) {
        return std::nullopt;
    }
    const auto demonstration = lines.countAfter("demonstration ", 1);
    const auto columns = lines.countAfter("columns ", kMostColumns);
    if (!demonstration || !columns) {
        return std::nullopt;
    }
    table.demonstration = *demonstration == 1;
    for (std::size_t column = 0; column < *columns; ++column) {
        const auto name = lines.after("column ");
        if (!name) {
            return std::nullopt;
        }
        table.columns.emplace_back(*name);
    }
    const auto rows = lines.countAfter("rows ", kMostRows);
    if (!rows) {
        return std::nullopt;
    }
    for (std::size_t at = 0; at < *rows; ++at) {
        const auto row = lines.after("row");
        if (!row || !decodeRow(*row, *columns, table.rows.emplace_back())) {
            return std::nullopt;
        }
    }
    if (lines.countAfter("end ", kMostRows) != rows || !lines.atEnd() || !isSendable(table)) {
        return std::nullopt;
    }
    return table;
}

}  // namespace mero::data
