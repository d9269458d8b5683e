// SPDX-License-Identifier: MIT
/// Diameters of a shaft. Every shaft is calculated as a round one: a rectangular shaft has the diameters of
/// circles of the same area.
#pragma once

namespace mero::calc::shaft_geometry {

/// Outer diameter of a shaft of rings: the inner diameter and the wall on both sides [m].
/// @throws RuntimeError Overflow
[[nodiscard]] float roundOuterDiameter(float inner_diameter_m, float wall_m);

/// Equivalent inner diameter of a rectangular shaft: of the circle with the area length times width [m].
/// @throws RuntimeError InvalidCall when that area is negative, Overflow
[[nodiscard]] float equivalentInnerDiameter(float length_m, float width_m);

/// Equivalent outer diameter of a rectangular shaft [m]. The wall is added once to the length and once to the
/// width, not on both sides as for a round shaft; results and reports depend on this formula.
/// @throws RuntimeError InvalidCall when the area is negative, Overflow
[[nodiscard]] float equivalentOuterDiameter(float length_m, float width_m, float wall_m);

}  // namespace mero::calc::shaft_geometry
