// SPDX-License-Identifier: MIT
/// Plausible tables by a power law, and odd ones that users could enter into a database.
#include "monkey/invented_rain.h"

#include <array>
#include <cmath>

#include "platform/numbers/runtime_error.h"

namespace mero::monkey {
namespace {

using data::StationTable;

constexpr std::array kDurations{5.0, 10.0, 15.0, 20.0, 30.0, 45.0, 60.0, 90.0, 120.0};

/// Kind of a station's table, chosen by the remainder of its number.
enum class Kind { Missing, OtherLastField, FewRows, Nulls, Huge, Negative, NoFields, Plausible };
constexpr int kKinds = 31;

Kind kindOf(int station) {
    const int remainder = station % kKinds;
    return remainder < static_cast<int>(Kind::Plausible) ? static_cast<Kind>(remainder) : Kind::Plausible;
}

StationTable plausible(int station) {
    StationTable table;
    table.columns = {"doba", "5", "2", "1", "05", "02", "01", "005"};
    table.demonstration = station % 2 == 1;
    for (const double duration : kDurations) {
        std::vector<StationTable::Value> row{duration};
        for (std::size_t rarity = 1; rarity < table.columns.size(); ++rarity) {
            const double at_five_minutes = 80.0 + 35.0 * static_cast<double>(rarity) + station;
            row.emplace_back(std::round(at_five_minutes * std::pow(5.0 / duration, 0.75) * 10.0) / 10.0);
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

}  // namespace

bool InventedRain::has(std::int16_t station_number) {
    return kindOf(station_number) != Kind::Missing;
}

StationTable InventedRain::read(std::int16_t station_number, const std::string& /*path*/) {
    StationTable table = plausible(station_number);
    switch (kindOf(station_number)) {
        case Kind::Missing:
            throw RuntimeError(data::kTableNotFound, "V databázi dešťů chybí tabulka",
                               RuntimeError::Effect::EndsProgram);
        case Kind::OtherLastField:
            table.columns.back() = "004";
            break;
        case Kind::FewRows:
            table.rows.resize(4);
            break;
        case Kind::Nulls:
            for (std::size_t row = 0; row < table.rows.size(); ++row) {
                table.rows[row][row % table.columns.size()] = std::nullopt;
            }
            break;
        case Kind::Huge:
            table.rows[0][0] = 40000.0;
            table.rows[1][1] = 1e39;
            table.rows[2][5] = 3e38;
            break;
        case Kind::Negative:
            table.rows[0][0] = 0.0;
            table.rows[1][0] = -10.0;
            table.rows[2][5] = -1.0;
            break;
        case Kind::NoFields:
            table.columns = {"doba"};
            for (auto& row : table.rows) {
                row.resize(1);
            }
            break;
        case Kind::Plausible:
            break;
    }
    return table;
}

}  // namespace mero::monkey
