// SPDX-License-Identifier: MIT
/// Throttled outflow and storage coefficient of a trench with pipes.
/// Both are stored when the drain panel is confirmed, and used by the design later.
#include "calc/drain.h"

#include "calc/rain.h"
#include "platform/numbers/checked.h"

namespace mero::calc::drain {

float throttledOutflow(float reduced_area_m2, float specific_outflow_l_s_ha) {
    const double area = reduced_area_m2;
    const double specific_outflow = specific_outflow_l_s_ha;
    return numbers::toSingle(area / kSquareMetresPerHectare * specific_outflow / kLitresPerCubicMetre);
}

float storageCoefficient(const Pipes& pipes, float porosity, float trench_width_m, float trench_height_m) {
    const double inner = static_cast<double>(pipes.inner_diameter_mm) / kMillimetresPerMetre;
    const double outer = static_cast<double>(pipes.outer_diameter_mm) / kMillimetresPerMetre;
    const double count = pipes.count;
    const double pores = porosity;
    const double section_m2 = static_cast<double>(trench_width_m) * static_cast<double>(trench_height_m);

    // A pipe's interior is all storage, which equals 1 / porosity of fill; the whole pipe displaces fill.
    const double pipes_over_fill =
        (numbers::divide(inner * inner * count, pores) - outer * outer * count) * kPi / 4.0;
    return numbers::toSingle(numbers::divide((pipes_over_fill + section_m2) * pores, section_m2));
}

}  // namespace mero::calc::drain
