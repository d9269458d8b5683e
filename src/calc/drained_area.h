// SPDX-License-Identifier: MIT
/// Reduced (impermeable-equivalent) drained area: partial areas weighted by their runoff coefficients.
/// The total is a Single at every step, like the shared value that stores it.
#pragma once

#include <span>

namespace mero::calc {

/// Adds a partial area to the running total. The product is computed in double precision; the sum is rounded
/// to Single.
/// @param running_total_m2   total of the entries before [m2]
/// @param runoff_coefficient share of the rain that runs off [-]; not limited to 0..1
/// @param partial_area_m2    size of the entry [m2]; may be negative
/// @throws RuntimeError Overflow when the total exceeds a Single
[[nodiscard]] float addPartialArea(float running_total_m2, float runoff_coefficient, float partial_area_m2);

/// The reduced area of all entries, added in order.
/// @param runoff_coefficients, partial_areas_m2 one value per entry, both of the same length
/// @return reduced area [m2], 0 without entries
/// @throws RuntimeError Overflow when one of the totals exceeds a Single
[[nodiscard]] float reducedArea(std::span<const float> runoff_coefficients,
                                std::span<const float> partial_areas_m2);

}  // namespace mero::calc
