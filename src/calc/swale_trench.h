// SPDX-License-Identifier: MIT
/// Combined object: a swale over an infiltration trench, with or without a throttled outflow.
/// The swale stores the rain, the trench takes what the swale lets through. Starting area, storage volume,
/// ponding depth and emptying time are those of the swale with its own filtration coefficient.
#pragma once

#include "calc/per_rain.h"
#include "calc/trench_section.h"
#include "platform/numbers/checked.h"

namespace mero::calc::swale_trench {

/// What the length of the trench depends on.
struct Balance {
    float reduced_area_m2;       ///< reduced drained area [m2]
    float infiltration_area_m2;  ///< infiltration area of the swale as stored [m2]
    float throttled_m3_s;        ///< outflow of the drain, 0 without one [m3/s]
    float swale_volume_m3;       ///< storage volume of the swale as stored [m3]
    float safety_factor;         ///< stretches the duration [-]
    TrenchSection trench;        ///< the trench under the swale, in the subsoil
};

/// Trench length that a rain asks for [m]: the inflow, less the throttled outflow and what the swale stores,
/// divided by what one metre of trench takes. Rows without a positive duration are left out. Its formula
/// throws RuntimeError DivisionByZero when the safety factor or what one metre takes is 0, Overflow.
[[nodiscard]] inline auto lengthPerRain(const Balance& balance) {
    const double reduced_area = balance.reduced_area_m2;
    const double infiltration_area = balance.infiltration_area_m2;
    const double throttled = balance.throttled_m3_s;
    const double swale_volume = balance.swale_volume_m3;
    const double safety_factor = balance.safety_factor;
    const UptakePerMetre uptake(balance.trench);

    const double collected = (reduced_area + infiltration_area) * kRatePerIntensity;
    return perRain<Rows::PositiveDuration>([=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double seconds = balanceSeconds(rain, safety_factor);
        const double to_trench_m3_s =
            collected * intensity - throttled - numbers::divideOfSingles(swale_volume, seconds);
        return numbers::divide(to_trench_m3_s, uptake.over(seconds));
    });
}

/// Trench length under the critical rain.
/// @return length [m] and the critical rain; 0 and none when the swale alone is enough
/// @throws RuntimeError as lengthPerRain()
[[nodiscard]] inline CriticalRain trenchLength(const Balance& balance, RainTable rains) {
    return lengthPerRain(balance).critical(rains);
}

/// Ground plan of the swale over the trench [m2], as the area verdict compares and shows it.
[[nodiscard]] constexpr double designedArea(float trench_length_m, float swale_width_m) {
    return static_cast<double>(trench_length_m) * static_cast<double>(swale_width_m);
}

/// Depth of the swale over the trench: its volume spread over the trench's length and width [m].
/// @throws RuntimeError DivisionByZero when length or width is 0, Overflow
[[nodiscard]] inline float swaleDepth(float swale_volume_m3, float trench_length_m, float swale_width_m) {
    return numbers::toSingle(numbers::divide(swale_volume_m3, designedArea(trench_length_m, swale_width_m)));
}

enum class AreaVerdict { Sufficient, Insufficient };

/// The ground plan that the trench needs must fit into the infiltration area reserved for the swale:
/// strictly smaller is sufficient, equal is not.
[[nodiscard]] constexpr AreaVerdict judgeArea(double designed_area_m2, float infiltration_area_m2) {
    return designed_area_m2 < static_cast<double>(infiltration_area_m2) ? AreaVerdict::Sufficient
                                                                        : AreaVerdict::Insufficient;
}

}  // namespace mero::calc::swale_trench
