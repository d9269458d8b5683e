// SPDX-License-Identifier: MIT
/// Inflow into the facility by the rational method, see the header.
#include "calc/inflow.h"

#include <cmath>

#include "platform/numbers/checked.h"

namespace mero::calc {

float inflow(float reduced_area_m2, float intensity_l_s_ha) {
    const double hectares_per_square_metre = std::pow(10.0, -4.0);
    const double area = reduced_area_m2;
    const double intensity = intensity_l_s_ha;
    return numbers::toSingle(hectares_per_square_metre * area * intensity);
}

}  // namespace mero::calc
