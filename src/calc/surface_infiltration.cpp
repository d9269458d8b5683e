// SPDX-License-Identifier: MIT
/// Surface infiltration: steady balance of rain and soil, see the header.
#include "calc/surface_infiltration.h"

#include "calc/rain.h"
#include "platform/numbers/checked.h"

namespace mero::calc::surface {

float infiltrationArea(float reduced_area_m2, float filtration_m_s, float intensity_l_s_ha) {
    const double area = reduced_area_m2;
    const double filtration = filtration_m_s;
    const double intensity = intensity_l_s_ha;
    // Infiltration rate of the soil as a multiple of the rain on it.
    const double uptake_ratio = numbers::divide(filtration * kIntensityPerRate, 2.0 * intensity);
    return numbers::toSingle(numbers::divide(area, uptake_ratio - 1.0));
}

}  // namespace mero::calc::surface
