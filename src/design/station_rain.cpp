// SPDX-License-Identifier: MIT
/// Reading a station's table row by row.
/// A table without the field "005" has "004", which takes its place from the first row without it.
#include "design/station_rain.h"

#include "platform/numbers/checked.h"

namespace mero::design {
namespace {

constexpr std::array<const char*, data::kPeriodicityCount> kFields{"5", "2", "1", "05", "02", "01", "005"};
constexpr const char* kSubstituteOfLastField = "004";

/// Why a value was not stored.
enum class Outcome { Stored, NoField, NoNumber };

Outcome store(const data::StationTable& table, std::size_t row, const char* field, float& slot) {
    const auto column = data::columnIndex(table, field);
    if (!column) {
        return Outcome::NoField;
    }
    const auto& value = table.rows[row][*column];
    if (!value) {
        return Outcome::NoNumber;
    }
    try {
        slot = numbers::toSingle(*value);
    } catch (const RuntimeError&) {
        return Outcome::NoNumber;
    }
    return Outcome::Stored;
}

/// The duration is of no use here, but what went wrong with it counts.
Outcome checkDuration(const data::StationTable& table, std::size_t row) {
    const auto column = data::columnIndex(table, "doba");
    if (!column) {
        return Outcome::NoField;
    }
    const auto& value = table.rows[row][*column];
    if (!value) {
        return Outcome::NoNumber;
    }
    try {
        static_cast<void>(numbers::toInteger(*value));
    } catch (const RuntimeError&) {
        return Outcome::NoNumber;
    }
    return Outcome::Stored;
}

}  // namespace

StationRain stationRain(const data::StationTable& table) {
    StationRain rain;
    rain.demonstration = table.demonstration;
    // The last failure is remembered from row to row, and a success does not clear it.
    Outcome last_failure = Outcome::Stored;
    const auto remember = [&](Outcome outcome) {
        if (outcome != Outcome::Stored) {
            last_failure = outcome;
        }
    };
    for (std::size_t row = 0; row < table.rows.size() && row < calc::kRainRows; ++row) {
        remember(checkDuration(table, row));
        for (std::size_t k = 0; k < kFields.size(); ++k) {
            remember(store(table, row, kFields[k], rain.intensities_l_s_ha[k][row]));
        }
        if (last_failure == Outcome::NoField) {
            remember(store(table, row, kSubstituteOfLastField, rain.intensities_l_s_ha.back()[row]));
        }
    }
    return rain;
}

}  // namespace mero::design
