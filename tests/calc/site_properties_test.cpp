// SPDX-License-Identifier: MIT
/// Properties of inflow, reduced area and surface infiltration over random sites.
/// Compares with extended precision, and checks relations that hold for every site.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>

#include "calc/drained_area.h"
#include "calc/inflow.h"
#include "calc/properties.h"
#include "calc/surface_infiltration.h"

namespace mero::calc {
namespace {

using namespace test;

RC_GTEST_PROP(Inflow, AgreesWithExtendedPrecision, ()) {
    const float reduced_area = area();
    const float intensity = number(0.0, 500.0, 0.1);
    const Exact expected = static_cast<Exact>(reduced_area) * intensity / 10000.0L;
    RC_ASSERT(storedNear(inflow(reduced_area, intensity), expected, 0.0L));
}

RC_GTEST_PROP(ReducedArea, LosesAtMostHalfAStepPerEntry, ()) {
    std::array<float, 20> coefficients{};
    std::array<float, 20> areas{};
    Exact expected = 0.0L;
    for (std::size_t i = 0; i < areas.size(); ++i) {
        coefficients[i] = number(0.0, 1.0, 0.05);
        areas[i] = area();
        expected += static_cast<Exact>(coefficients[i]) * areas[i];
    }
    RC_ASSERT(near(reducedArea(coefficients, areas), expected, 0.0L, 20.0L * kSingleStore));
}

RC_GTEST_PROP(SurfaceInfiltration, SatisfiesItsBalance, ()) {
    const float reduced_area = area();
    const float kf = filtration();
    const float intensity = number(0.1, 500.0, 0.1);
    const Exact ratio = static_cast<Exact>(kf) * 1e7L / (2.0L * intensity);
    // Next to the pole the difference has no significant digits; the error tests cover the pole itself.
    RC_PRE(std::fabs(ratio - 1.0L) > 1e-6L);
    const Exact expected = reduced_area / (ratio - 1.0L);
    const Exact pole_amplifies = expected * (ratio + 1.0L) / (ratio - 1.0L);
    RC_ASSERT(storedNear(surface::infiltrationArea(reduced_area, kf, intensity), expected, pole_amplifies));
}

}  // namespace
}  // namespace mero::calc
