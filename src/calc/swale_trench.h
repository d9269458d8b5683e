// SPDX-License-Identifier: MIT
/// Combined object: a swale over an infiltration trench, with or without a throttled outflow.
/// The swale stores the rain, the trench takes the water that passes through the swale. Starting area,
/// storage volume, ponding depth and emptying time are computed as for a swale, with its own filtration
/// coefficient.
#pragma once

#include "calc/per_rain.h"
#include "calc/trench_section.h"
#include "platform/numbers/checked.h"

namespace mero::calc::swale_trench {

/// Inputs of the length of the trench.
struct Balance {
    float reduced_area_m2;       ///< reduced drained area [m2]
    float infiltration_area_m2;  ///< infiltration area of the swale as stored [m2]
    float throttled_m3_s;        ///< outflow of the drain, 0 without one [m3/s]
    float swale_volume_m3;       ///< storage volume of the swale as stored [m3]
    float safety_factor;         ///< multiplies the duration [-]
    TrenchSection trench;        ///< the trench under the swale, in the subsoil
};

/// Trench length for each rain [m]: the inflow, less the throttled outflow and the storage of the swale,
/// divided by the uptake per metre of trench. Rows without a positive duration are skipped.
/// @throws RuntimeError (from the formula) DivisionByZero when the safety factor or the uptake is 0, Overflow
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

/// Trench length for the critical rain.
/// @return length [m] and the critical rain; 0 and none when the swale alone is enough
/// @throws RuntimeError as lengthPerRain()
[[nodiscard]] inline CriticalRain trenchLength(const Balance& balance, RainTable rains) {
    return lengthPerRain(balance).critical(rains);
}

/// Ground plan of the swale over the trench [m2]; the area verdict compares and shows it.
[[nodiscard]] constexpr double designedArea(float trench_length_m, float swale_width_m) {
    return static_cast<double>(trench_length_m) * static_cast<double>(swale_width_m);
}

/// Depth of the swale over the trench: its volume spread over the trench's length and width [m].
/// @throws RuntimeError DivisionByZero when length or width is 0, Overflow
[[nodiscard]] inline float swaleDepth(float swale_volume_m3, float trench_length_m, float swale_width_m) {
    return numbers::toSingle(numbers::divide(swale_volume_m3, designedArea(trench_length_m, swale_width_m)));
}

enum class AreaVerdict { Sufficient, Insufficient };

/// The ground plan of the trench must fit into the infiltration area reserved for the swale: it is sufficient
/// if it is strictly smaller, not if it is equal.
[[nodiscard]] constexpr AreaVerdict judgeArea(double designed_area_m2, float infiltration_area_m2) {
    return designed_area_m2 < static_cast<double>(infiltration_area_m2) ? AreaVerdict::Sufficient
                                                                        : AreaVerdict::Insufficient;
}

}  // namespace mero::calc::swale_trench
