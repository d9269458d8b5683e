// SPDX-License-Identifier: MIT
/// Diameters of round and rectangular shafts.
/// A = pi * D^2 / 4, solved for the diameter.
#include "calc/shaft_geometry.h"

#include "calc/rain.h"
#include "platform/numbers/checked.h"

namespace mero::calc::shaft_geometry {

float roundOuterDiameter(float inner_diameter_m, float wall_m) {
    const double inner = inner_diameter_m;
    const double wall = wall_m;
    return numbers::toSingle(2.0 * wall + inner);
}

float equivalentInnerDiameter(float length_m, float width_m) {
    const double length = length_m;
    const double width = width_m;
    return numbers::toSingle(numbers::squareRoot(4.0 * length * width / kPi));
}

float equivalentOuterDiameter(float length_m, float width_m, float wall_m) {
    const double length = length_m;
    const double width = width_m;
    const double wall = wall_m;
    return numbers::toSingle(numbers::squareRoot(4.0 * (length + wall) * (width + wall) / kPi));
}

}  // namespace mero::calc::shaft_geometry
