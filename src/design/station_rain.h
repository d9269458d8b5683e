// SPDX-License-Identifier: MIT
/// The intensities of one rain-gauge station: what of its table goes where.
/// The same rules as the rain dialog's: a missing field or a bad value leaves its position at 0.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "calc/rain.h"
#include "data/mod_public_variables.h"
#include "data/rain_database.h"

namespace mero::design {

/// Intensities [l/(s.ha)] by periodicity and row.
struct StationRain {
    std::array<std::array<float, calc::kRainRows>, data::kPeriodicityCount> intensities_l_s_ha{};
    bool demonstration = false;  ///< the database says that its values are no measurement
};

[[nodiscard]] StationRain stationRain(const data::StationTable& table);

}  // namespace mero::design
