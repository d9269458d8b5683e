// SPDX-License-Identifier: MIT
/// Reads a station's table row by row.
/// A table without the field "005" has "004", which takes its place from the first row without it.
#include "design/station_rain.h"

#include <optional>

#include "platform/numbers/checked.h"

namespace mero::design {
namespace {

/// Intensity fields in the order of the periodicities 5, 2, 1, 0.5, 0.2, 0.1, 0.05.
constexpr std::array<const char*, data::kPeriodicityCount> kFields{"5", "2", "1", "05", "02", "01", "005"};
constexpr const char* kSubstituteOfLastField = "004";

}  // namespace

void readStation(const data::StationTable& table, StationIntensities& intensities_l_s_ha,
                 StationDurations& durations_min) {
    // Why the last field without a number had none; a success does not clear that, nor does the next row.
    bool field_missing = false;
    const auto store = [&]<typename T>(std::size_t row, const char* field, T& slot, T (*convert)(double)) {
        const auto column = data::columnIndex(table, field);
        const std::optional<double> value = column ? table.rows[row][*column] : std::nullopt;
        try {
            if (value) {
                slot = convert(*value);
                return;
            }
        } catch (const RuntimeError&) {
            // Too large: treated as a bad value.
        }
        field_missing = !column;
    };
    for (std::size_t row = 0; row < table.rows.size() && row < calc::kRainRows; ++row) {
        store(row, "doba", durations_min[row], numbers::toInteger);
        for (std::size_t k = 0; k < kFields.size(); ++k) {
            store(row, kFields[k], intensities_l_s_ha[k][row], numbers::toSingle);
        }
        if (field_missing) {
            store(row, kSubstituteOfLastField, intensities_l_s_ha.back()[row], numbers::toSingle);
        }
    }
}

StationRain stationRain(const data::StationTable& table) {
    StationRain rain;
    StationDurations durations{};
    readStation(table, rain.intensities_l_s_ha, durations);
    rain.demonstration = table.demonstration;
    return rain;
}

}  // namespace mero::design
