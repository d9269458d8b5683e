// SPDX-License-Identifier: MIT
/// Reads a station's table row by row.
/// A table without the field "005" has "004", which takes its place from the first row without it.
#include "design/station_rain.h"

#include <optional>
#include <string_view>

#include "platform/numbers/checked.h"

namespace mero::design {

using data::kIntensityFields;
static_assert(kIntensityFields.size() == data::kPeriodicityCount);

void readStation(const data::StationTable& table, StationIntensities& intensities_l_s_ha,
                 StationDurations& durations_min) {
    // Why the last field without a number had none; a success does not clear that, nor does the next row.
    bool field_missing = false;
    const auto store = [&]<typename T>(std::size_t row, std::string_view field, T& slot,
                                       T (*convert)(double)) {
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
        for (std::size_t k = 0; k < kIntensityFields.size(); ++k) {
            store(row, kIntensityFields[k], intensities_l_s_ha[k][row], numbers::toSingle);
        }
        if (field_missing) {
            store(row, data::kSubstituteOfLastField, intensities_l_s_ha.back()[row], numbers::toSingle);
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
