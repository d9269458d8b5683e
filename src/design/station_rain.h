// SPDX-License-Identifier: MIT
/// Reading a rain-gauge station: what of its table goes where.
/// A missing field or a bad value is skipped: the position keeps what it held.
#pragma once

#include <array>
#include <cstdint>

#include "calc/rain.h"
#include "data/mod_public_variables.h"
#include "data/rain_database.h"

namespace mero::design {

/// Intensities [l/(s.ha)] by periodicity and row.
using StationIntensities = std::array<std::array<float, calc::kRainRows>, data::kPeriodicityCount>;
/// Durations as the table has them [min]; the design uses those of the reference table.
using StationDurations = std::array<std::int16_t, calc::kRainRows>;

/// Reads the first nine rows of a station's table.
void readStation(const data::StationTable& table, StationIntensities& intensities_l_s_ha,
                 StationDurations& durations_min);

/// The rain of one station, 0 where its table has no number.
struct StationRain {
    StationIntensities intensities_l_s_ha{};
    bool demonstration = false;  ///< the database says that its values are no measurement
};

[[nodiscard]] StationRain stationRain(const data::StationTable& table);

}  // namespace mero::design
