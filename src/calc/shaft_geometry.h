// SPDX-License-Identifier: MIT
/// Diameters of a shaft: a shaft is calculated as a round one, whatever its shape.
/// A rectangular shaft counts with the diameters of circles of the same area.
#pragma once

namespace mero::calc::shaft_geometry {

/// Outer diameter of a shaft built of rings: the wall on both sides of the inner diameter [m].
/// @throws RuntimeError Overflow
[[nodiscard]] float roundOuterDiameter(float inner_diameter_m, float wall_m);

/// Equivalent inner diameter of a rectangular shaft: the circle with the area length times width [m].
/// @throws RuntimeError InvalidCall when that area is negative, Overflow
[[nodiscard]] float equivalentInnerDiameter(float length_m, float width_m);

/// Equivalent outer diameter of a rectangular shaft [m]. The program's rule adds the wall once to the
/// length and once to the width, not on both sides as for a round shaft.
/// @throws RuntimeError InvalidCall when the area is negative, Overflow
[[nodiscard]] float equivalentOuterDiameter(float length_m, float width_m, float wall_m);

}  // namespace mero::calc::shaft_geometry
