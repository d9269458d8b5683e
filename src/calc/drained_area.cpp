// SPDX-License-Identifier: MIT
/// Reduced drained area.
/// The result depends on the order of the entries, because the sum is rounded after every addition.
#include "calc/drained_area.h"

#include <cassert>
#include <cstddef>

#include "platform/numbers/checked.h"

namespace mero::calc {

float addPartialArea(float running_total_m2, float runoff_coefficient, float partial_area_m2) {
    const double total = running_total_m2;
    const double coefficient = runoff_coefficient;
    const double area = partial_area_m2;
    return numbers::toSingle(total + coefficient * area);
}

float reducedArea(std::span<const float> runoff_coefficients, std::span<const float> partial_areas_m2) {
    assert(runoff_coefficients.size() == partial_areas_m2.size());
    float total = 0.0F;
    for (std::size_t i = 0; i < partial_areas_m2.size(); ++i) {
        total = addPartialArea(total, runoff_coefficients[i], partial_areas_m2[i]);
    }
    return total;
}

}  // namespace mero::calc
