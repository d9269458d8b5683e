// SPDX-License-Identifier: MIT
/// Swale: a shallow grassed hollow that stores the rain and lets it soak away through its bottom.
/// The steps of the design in order; the swale of the combined object uses them too.
#pragma once

#include "calc/per_rain.h"
#include "platform/numbers/checked.h"

namespace mero::calc::swale {

/// First infiltration area: a share of the reduced area that depends on the soil.
/// @param reduced_area_m2  reduced drained area [m2]
/// @param soil_option      0 gives a tenth of the area, 1 a fifth
/// @param previous_area_m2 the area stored before, kept for any other soil option [m2]
/// @return infiltration area [m2]; its field stores it back with one decimal
/// @throws RuntimeError Overflow
[[nodiscard]] inline float startingArea(float reduced_area_m2, int soil_option, float previous_area_m2) {
    const double area = reduced_area_m2;
    switch (soil_option) {
        case 0:
            return numbers::toSingle(0.1 * area);
        case 1:
            return numbers::toSingle(0.2 * area);
        default:
            return previous_area_m2;
    }
}

/// Inputs of the water balance of a swale.
struct Balance {
    float reduced_area_m2;       ///< reduced drained area [m2]
    float infiltration_area_m2;  ///< infiltration area of the swale as stored [m2]
    float filtration_m_s;        ///< coefficient of the layer below [m/s]
    float safety_factor;         ///< multiplies the duration [-]
};

/// Storage volume for each rain [m3]: the runoff of the drained area and the rain on the swale, less the
/// infiltration at half the saturated conductivity, over the rain's duration times the safety factor.
/// All nine rows are used, also those with a negative duration.
[[nodiscard]] inline auto volumePerRain(const Balance& balance) {
    const double reduced_area = balance.reduced_area_m2;
    const double infiltration_area = balance.infiltration_area_m2;
    const double filtration = balance.filtration_m_s;
    const double safety_factor = balance.safety_factor;

    const double collected = (reduced_area + infiltration_area) * kRatePerIntensity;
    const double soaked_m3_s = infiltration_area * filtration / 2.0;
    return perRain<Rows::All>([=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double duration = rain.duration_min;
        return (collected * intensity - soaked_m3_s) * duration * kSecondsPerMinute * safety_factor;
    });
}

/// Storage volume for the critical rain.
/// @return volume [m3] and the critical rain; 0 and none when the soil takes every rain as it falls
[[nodiscard]] inline CriticalRain storageVolume(const Balance& balance, RainTable rains) {
    return volumePerRain(balance).critical(rains);
}

/// Depth of the water when the whole volume is on the infiltration area [m].
/// @throws RuntimeError DivisionByZero when the area is 0, Overflow
[[nodiscard]] inline float pondingDepth(float volume_m3, float infiltration_area_m2) {
    return numbers::toSingle(numbers::divide(volume_m3, infiltration_area_m2));
}

/// Time in hours until the water has soaked away, at half the saturated conductivity (the soil above the
/// groundwater is not saturated). The safety factor is not applied again: the volume includes it.
/// @param depth_m        depth of the water [m]
/// @param filtration_m_s coefficient of the layer below [m/s]; the caller checks that it is > 0
/// @throws RuntimeError DivisionByZero when the coefficient is 0, Overflow
[[nodiscard]] inline float emptyingTimeHours(float depth_m, float filtration_m_s) {
    const double depth = depth_m;
    return numbers::toSingle(numbers::divide(2.0 * depth, filtration_m_s) / kSecondsPerHour);
}

}  // namespace mero::calc::swale
