/// Infiltration trench, with or without a drain pipe.
/// The length follows from the balance; volume, area and the drain's outflow follow from the length.
#pragma once

#include "calc/critical_rain.h"
#include "calc/trench_section.h"

namespace mero::calc::trench {

/// What the design of a trench depends on.
struct Balance {
    float reduced_area_m2;  ///< reduced drained area [m2]
    float safety_factor;    ///< stretches the duration [-]
    TrenchSection section;  ///< the trench in the subsoil
};

/// Trench length under the critical rain: the inflow from the reduced area divided by what one metre of
/// trench takes. Rows without a positive duration are left out.
/// @return length [m] and the critical rain; 0 and none without a rain
/// @throws RuntimeError DivisionByZero when the safety factor or what one metre takes is 0, Overflow
[[nodiscard]] CriticalRain requiredLength(const Balance& balance, RainTable rains);

/// Storage volume of the trench under the picked rain: inflow less what soaks away through the infiltration
/// area at half the saturated conductivity, over the duration times the safety factor [m3].
/// @throws RuntimeError Overflow
[[nodiscard]] float storageVolume(const Balance& balance, float length_m, const Rain& picked_rain);

/// Infiltration area: bottom and half the wall height, along the length [m2].
/// @throws RuntimeError Overflow
[[nodiscard]] float infiltrationArea(float height_m, float width_m, float length_m);

/// The openings of the drain pipes through which water leaves.
struct DrainOutlet {
    float openings_cm2_m;  ///< area of the openings of one pipe [cm2 per metre of trench]
    float pipe_count;      ///< number of pipes [-]; a Single, as it is stored
    float velocity_m_s;    ///< velocity in the openings [m/s]
};

/// What the drain lets out along the whole trench (continuity, area times velocity) [l/s].
/// @throws RuntimeError Overflow
[[nodiscard]] float drainOutflow(const DrainOutlet& outlet, float length_m);

enum class OutflowVerdict { Met, NotMet };

/// The drain must let out at least what flows in; equal is enough.
[[nodiscard]] constexpr OutflowVerdict judgeOutflow(float outflow_l_s, float inflow_l_s) {
    return outflow_l_s < inflow_l_s ? OutflowVerdict::NotMet : OutflowVerdict::Met;
}

}  // namespace mero::calc::trench
