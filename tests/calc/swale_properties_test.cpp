// SPDX-License-Identifier: MIT
/// Properties of the swale design over random sites.
/// Compares with extended precision, and checks relations that hold for every site.
#include <gtest/gtest.h>

#include "calc/properties.h"
#include "calc/swale.h"

namespace mero::calc {
namespace {

using namespace test;

swale::Balance swaleSite() {
    return {.reduced_area_m2 = area(),
            .infiltration_area_m2 = number(1.0, 4000.0, 0.1),
            .filtration_m_s = filtration(),
            .safety_factor = safetyFactor()};
}

RC_GTEST_PROP(SwaleVolume, AgreesWithExtendedPrecision, ()) {
    const swale::Balance site = swaleSite();
    const Table table = rains();
    const Exact infiltration_area = site.infiltration_area_m2;
    const Exact collecting = site.reduced_area_m2 + infiltration_area;
    const Exact soaked = infiltration_area * site.filtration_m_s / 2.0L;
    const Exact factor = site.safety_factor;
    const ExactSearch expected(
        table, false,
        [&](const Rain& rain) {
            return (collecting * 1e-7L * rain.intensity_l_s_ha - soaked) * rain.duration_min * 60.0L * factor;
        },
        [&](const Rain& rain) {
            return (collecting * 1e-7L * rain.intensity_l_s_ha + soaked) * rain.duration_min * 60.0L * factor;
        });
    expected.check(swale::storageVolume(site, table));
}

RC_GTEST_PROP(SwaleVolume, GrowsWithTheDrainedAreaAndTheSafetyFactor, ()) {
    const swale::Balance site = swaleSite();
    const Table table = rains();
    swale::Balance larger = site;
    larger.reduced_area_m2 += area();
    larger.safety_factor += safetyFactor();
    RC_ASSERT(swale::storageVolume(larger, table).maximum >= swale::storageVolume(site, table).maximum);
}

RC_GTEST_PROP(SwaleEmptying, TakesAsLongAsHalfTheConductivityNeeds, ()) {
    const float volume = number(0.0, 500.0, 0.1);
    const float infiltration_area = number(1.0, 4000.0, 0.1);
    const float kf = filtration();
    const float depth = swale::pondingDepth(volume, infiltration_area);
    RC_ASSERT(storedNear(depth, static_cast<Exact>(volume) / infiltration_area, 0.0L));
    RC_ASSERT(storedNear(swale::emptyingTimeHours(depth, kf), 2.0L * depth / kf / 3600.0L, 0.0L));
}

}  // namespace
}  // namespace mero::calc
