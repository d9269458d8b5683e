// SPDX-License-Identifier: MIT
/// What a user enters about a site: drained area, design rain, subsoil, as plain numbers.
/// Preparing it is cheap, so a sweep prepares it anew for every variant.
#pragma once

#include <array>
#include <cstdint>

#include "calc/rain.h"
#include "platform/numbers/checked.h"

namespace mero::design {

/// Result of confirming the rain dialog.
enum class RainConfirmation : std::uint8_t {
    Accepted,
    NoIntensities,  ///< they add up to 0 in whole numbers: the dialog refuses them
    Overflow,       ///< their sum does not fit 16 bits: a run-time error, the dialog stays open
};

struct Site {
    bool has_areas = false;  ///< an empty list of areas leaves the area dialog unopened
    float reduced_area_m2 = 0.0F;
    std::array<calc::Rain, calc::kRainRows> rains{};
    int picked_row = -1;  ///< row of the design rain, -1: none picked
    RainConfirmation rain_confirmation = RainConfirmation::Accepted;
    float filtration_m_s = 0.0F;  ///< of the subsoil, as typed in
    float groundwater_depth_m = 0.0F;
};

/// Judges the intensities as the rain dialog does when it is confirmed. Its running total is a 16-bit
/// Integer, so intensities below 0.5 never add up.
[[nodiscard]] inline RainConfirmation confirmRain(calc::RainTable rains) {
    std::int16_t sum = 0;
    try {
        for (const calc::Rain& rain : rains) {
            sum = numbers::toInteger(static_cast<double>(sum) + static_cast<double>(rain.intensity_l_s_ha));
        }
    } catch (const RuntimeError&) {
        return RainConfirmation::Overflow;
    }
    return sum == 0 ? RainConfirmation::NoIntensities : RainConfirmation::Accepted;
}

}  // namespace mero::design
