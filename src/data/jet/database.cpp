// SPDX-License-Identifier: MIT
/// Finds tables by their names.
#include "data/jet/database.h"

namespace mero::data::jet {

TableDefinition Database::table(std::string_view name) const {
    const auto page = catalogue_.find(name);
    if (!page) {
        throw Failure(Failure::Kind::NoSuchTable, "no such table: " + std::string(name));
    }
    return tableDefinition(file_, *page);
}

}  // namespace mero::data::jet
