// SPDX-License-Identifier: MIT
/// Inflow into the facility for one rain. The window shows it; a trench's drain is checked against it.
#pragma once

namespace mero::calc {

/// Rational method: the rain on the reduced area runs off at once.
///
/// The factor from m2 to hectares is 10^-4. The product is computed in the order factor, area, intensity, so
/// that the last digit is always the same.
///
/// @param reduced_area_m2  reduced drained area [m2]
/// @param intensity_l_s_ha rain intensity [l/(s.ha)]
/// @return inflow [l/s]
/// @throws RuntimeError Overflow
[[nodiscard]] float inflow(float reduced_area_m2, float intensity_l_s_ha);

}  // namespace mero::calc
