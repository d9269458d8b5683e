// SPDX-License-Identifier: MIT
/// Surface infiltration: the area through which the picked rain soaks away while it falls.
/// No water is stored, so the design is a single formula.
#pragma once

namespace mero::calc::surface {

/// Infiltration area in balance with one rain: the rain on the reduced area and on the infiltration area
/// equals the infiltration at half the saturated conductivity (Darcy's law with a unit gradient),
/// (A_red + A_s) * i = A_s * kf / 2, solved for A_s.
///
/// If the soil takes less than the rain on it, the area is negative; the formula is applied unchanged.
///
/// @param reduced_area_m2  reduced drained area [m2]
/// @param filtration_m_s   filtration coefficient of the subsoil [m/s]
/// @param intensity_l_s_ha intensity of the picked rain [l/(s.ha)], > 0 (the caller reports a missing rain)
/// @return area [m2]
/// @throws RuntimeError DivisionByZero when soil and rain balance exactly or the intensity is 0, Overflow
[[nodiscard]] float infiltrationArea(float reduced_area_m2, float filtration_m_s, float intensity_l_s_ha);

}  // namespace mero::calc::surface
