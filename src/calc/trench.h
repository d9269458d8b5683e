// SPDX-License-Identifier: MIT
/// Infiltration trench, with or without a drain pipe.
/// The length follows from the balance; volume, area and the drain's outflow follow from the length.
#pragma once

#include "calc/per_rain.h"
#include "calc/trench_section.h"
#include "platform/numbers/checked.h"

namespace mero::calc::trench {

/// Inputs of the design of a trench.
struct Balance {
    float reduced_area_m2;  ///< reduced drained area [m2]
    float safety_factor;    ///< multiplies the duration [-]
    TrenchSection section;  ///< the trench in the subsoil
};

/// Trench length for each rain [m]: the inflow from the reduced area divided by the uptake per metre of
/// trench. Rows without a positive duration are skipped.
/// @throws RuntimeError (from the formula) DivisionByZero when the safety factor or the uptake is 0, Overflow
[[nodiscard]] inline auto lengthPerRain(const Balance& balance) {
    const double reduced_area = balance.reduced_area_m2;
    const double safety_factor = balance.safety_factor;
    const UptakePerMetre uptake(balance.section);

    const double collected = kRatePerIntensity * reduced_area;
    return perRain<Rows::PositiveDuration>([=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double seconds = balanceSeconds(rain, safety_factor);
        return numbers::divide(collected * intensity, uptake.over(seconds));
    });
}

/// Trench length for the critical rain.
/// @return length [m] and the critical rain; 0 and none without a rain
/// @throws RuntimeError as lengthPerRain()
[[nodiscard]] inline CriticalRain requiredLength(const Balance& balance, RainTable rains) {
    return lengthPerRain(balance).critical(rains);
}

/// Storage volume of the trench for the picked rain: inflow less the infiltration through the infiltration
/// area at half the saturated conductivity, over the duration times the safety factor [m3].
/// @throws RuntimeError Overflow
[[nodiscard]] inline float storageVolume(const Balance& balance, float length_m, const Rain& picked_rain) {
    const double reduced_area = balance.reduced_area_m2;
    const double safety_factor = balance.safety_factor;
    const double filtration = balance.section.filtration_m_s;
    const double length = length_m;
    const double intensity = picked_rain.intensity_l_s_ha;
    const double duration = picked_rain.duration_min;

    const double inflow_m3_s = kRatePerIntensity * reduced_area * intensity;
    const double soaked_m3_s =
        infiltrationWidth(balance.section.width_m, balance.section.height_m) * length * filtration / 2.0;
    return numbers::toSingle((inflow_m3_s - soaked_m3_s) * duration * kSecondsPerMinute * safety_factor);
}

/// Infiltration area: bottom and half the wall height, along the length [m2].
/// @throws RuntimeError Overflow
[[nodiscard]] inline float infiltrationArea(float height_m, float width_m, float length_m) {
    const double length = length_m;
    return numbers::toSingle(infiltrationWidth(width_m, height_m) * length);
}

/// The outlet openings of the drain pipes.
struct DrainOutlet {
    float openings_cm2_m;  ///< area of the openings of one pipe [cm2 per metre of trench]
    float pipe_count;      ///< number of pipes [-]; a Single, as it is stored
    float velocity_m_s;    ///< velocity in the openings [m/s]
};

/// Outflow of the drain along the whole trench (continuity: area times velocity) [l/s].
/// @throws RuntimeError Overflow
[[nodiscard]] inline float drainOutflow(const DrainOutlet& outlet, float length_m) {
    const double openings = outlet.openings_cm2_m;
    const double pipe_count = outlet.pipe_count;
    const double velocity = outlet.velocity_m_s;
    const double length = length_m;
    return numbers::toSingle(openings / kSquareCentimetresPerSquareMetre * pipe_count * velocity * length *
                             kLitresPerCubicMetre);
}

enum class OutflowVerdict { Met, NotMet };

/// The outflow of the drain must reach the inflow; an equal outflow is sufficient.
[[nodiscard]] constexpr OutflowVerdict judgeOutflow(float outflow_l_s, float inflow_l_s) {
    return outflow_l_s < inflow_l_s ? OutflowVerdict::NotMet : OutflowVerdict::Met;
}

}  // namespace mero::calc::trench
