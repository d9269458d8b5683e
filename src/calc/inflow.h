// SPDX-License-Identifier: MIT
/// Inflow into the facility under one rain, as the main window shows it and the drain of a trench is
/// judged against it.
#pragma once

namespace mero::calc {

/// Rational method: what falls on the reduced area runs off at once.
///
/// The factor from m2 to hectares is ten raised to the power -4, and the product is taken in the order
/// factor, area, intensity, so that the last digit is always the same.
///
/// @param reduced_area_m2  reduced drained area [m2]
/// @param intensity_l_s_ha rain intensity [l/(s.ha)]
/// @return inflow [l/s]
/// @throws RuntimeError Overflow
[[nodiscard]] float inflow(float reduced_area_m2, float intensity_l_s_ha);

}  // namespace mero::calc
