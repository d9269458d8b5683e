// SPDX-License-Identifier: MIT
/// Values that the drain panel computes for the trench: the throttled outflow, and the storage coefficient of
/// a trench with pipes in its fill.
#pragma once

namespace mero::calc::drain {

/// Throttled outflow allowed by a limit per hectare of the reduced area [m3/s].
/// @param reduced_area_m2          reduced drained area [m2]
/// @param specific_outflow_l_s_ha  allowed outflow intensity [l/(s.ha)]
/// @throws RuntimeError Overflow
[[nodiscard]] float throttledOutflow(float reduced_area_m2, float specific_outflow_l_s_ha);

/// Pipes laid in the fill of a trench.
struct Pipes {
    float inner_diameter_mm;
    float outer_diameter_mm;
    float count;  ///< number of pipes [-]; a Single, as it is stored
};

/// Storage coefficient of the trench with its pipes: the pores of the fill around the pipes plus the
/// interiors of the pipes, per unit of the trench's cross-section. Without pipes it is the porosity, up to
/// rounding.
/// @param porosity of the fill [-]
/// @param trench_width_m, trench_height_m cross-section of the trench [m]
/// @return coefficient [-]; may be 0 or negative for pipes wider than the trench
/// @throws RuntimeError DivisionByZero when porosity, width or height is 0, Overflow
[[nodiscard]] float storageCoefficient(const Pipes& pipes, float porosity, float trench_width_m,
                                       float trench_height_m);

}  // namespace mero::calc::drain
