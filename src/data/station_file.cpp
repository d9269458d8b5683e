// SPDX-License-Identifier: MIT
/// Makes a station's table of the columns and rows of a file.
#include "data/station_file.h"

#include <algorithm>

#include "data/jet/database.h"
#include "data/jet/same_name.h"
#include "data/jet/value.h"

namespace mero::data {
namespace {

/// A table of this name marks a file of demonstration values.
constexpr std::string_view kDemoTable = "Demo";
/// Its only column.
constexpr std::string_view kDemoColumn = "poznamka";
constexpr std::string_view kStationTable = "List";
constexpr std::string_view kSystemTable = "MSys";

/// The mark is found by its column too, so that a damaged name does not remove it.
bool isDemoTable(const jet::Database& database, const jet::CatalogueEntry& entry) {
    if (jet::isSameName(entry.name, kDemoTable)) {
        return true;
    }
    if (entry.name.starts_with(kStationTable) || entry.name.starts_with(kSystemTable)) {
        return false;
    }
    try {
        const auto columns = database.table(entry).columns;
        return columns.size() == 1 && jet::isSameName(columns.front().name, kDemoColumn);
    } catch (const jet::Failure&) {
        return false;  // a table that nobody asks for
    }
}

/// The database would refuse each value of such a table alone, so that a station would have no rain at all.
void requireNumbers(const jet::TableDefinition& definition) {
    const auto asked = [](const jet::Column& column) { return isIntensityField(column.name); };
    const auto holds_numbers = [&](const jet::Column& column) {
        return asked(column) && jet::holdsNumbers(column.type);
    };
    if (std::ranges::any_of(definition.columns, asked) &&
        std::ranges::none_of(definition.columns, holds_numbers)) {
        throw jet::Failure(jet::Failure::Kind::NoNumbers, "no field of intensities holds numbers");
    }
}

}  // namespace

StationTable stationTable(std::span<const std::uint8_t> content, const std::string& name) {
    const jet::Database database(content);
    const jet::TableDefinition definition = database.table(name);
    requireNumbers(definition);
    StationTable table;
    table.demonstration = std::ranges::any_of(
        database.catalogue().tables(), [&](const auto& entry) { return isDemoTable(database, entry); });
    for (const jet::Column& column : definition.columns) {
        if (columnIndex(table, column.name)) {
            jet::failDamaged("two columns with one name");
        }
        table.columns.push_back(column.name);
    }
    database.forEachRow(definition, [&](const jet::Row& row) {
        auto& values = table.rows.emplace_back();
        for (const jet::Column& column : definition.columns) {
            const auto bytes = row.value(column);
            const bool holds_number = bytes && jet::holdsNumbers(column.type);
            values.push_back(holds_number ? jet::numberOf(column, *bytes) : std::nullopt);
        }
    });
    return table;
}

}  // namespace mero::data
