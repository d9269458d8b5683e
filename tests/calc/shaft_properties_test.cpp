// SPDX-License-Identifier: MIT
/// Properties of the shaft design and of its geometry over random sites.
/// Compares with extended precision, and checks relations that hold for every site.
#include <gtest/gtest.h>

#include <cstdint>

#include "calc/properties.h"
#include "calc/shaft.h"
#include "calc/shaft_geometry.h"

namespace mero::calc {
namespace {

using namespace test;

shaft::Balance shaftSite() {
    const float inner = number(0.3, 4.0, 0.05);
    return {.reduced_area_m2 = area(),
            .filtration_m_s = filtration(),
            .safety_factor = safetyFactor(),
            .shafts = {.count = static_cast<std::int16_t>(*rc::gen::inRange(1, 101)),
                       .outer_diameter_m = shaft_geometry::roundOuterDiameter(inner, number(0.0, 0.3, 0.01)),
                       .inner_diameter_m = inner}};
}

RC_GTEST_PROP(ShaftLevel, AgreesWithExtendedPrecision, ()) {
    const shaft::Balance site = shaftSite();
    const Table table = rains();
    const Exact outer = static_cast<Exact>(site.shafts.count) * site.shafts.outer_diameter_m;
    const Exact inner = static_cast<Exact>(site.shafts.count) * site.shafts.inner_diameter_m;
    const Exact soaked = kExactPi * outer * outer / 4.0L * site.filtration_m_s / 2.0L;
    const auto per_metre = [&](const Rain& rain) {
        return kExactPi * inner * inner / (4.0L * 60.0L * rain.duration_min * site.safety_factor) +
               outer * kExactPi * site.filtration_m_s / 4.0L;
    };
    const ExactSearch expected(
        table, true,
        [&](const Rain& rain) {
            return (1e-7L * site.reduced_area_m2 * rain.intensity_l_s_ha - soaked) / per_metre(rain);
        },
        [&](const Rain& rain) {
            return (1e-7L * site.reduced_area_m2 * rain.intensity_l_s_ha + soaked) / per_metre(rain);
        });
    expected.check(shaft::waterLevel(site, table));
}

RC_GTEST_PROP(ShaftLevel, DoesNotRiseWithMoreShaftsOrAFasterSoil, ()) {
    const shaft::Balance site = shaftSite();
    const Table table = rains();
    shaft::Balance relieved = site;
    relieved.shafts.count = static_cast<std::int16_t>(relieved.shafts.count + *rc::gen::inRange(0, 10));
    relieved.filtration_m_s += filtration();
    RC_ASSERT(shaft::waterLevel(relieved, table).maximum <= shaft::waterLevel(site, table).maximum);
}

RC_GTEST_PROP(ShaftSteps, AgreeWithExtendedPrecision, ()) {
    const shaft::Balance site = shaftSite();
    const float level = number(0.0, 10.0, 0.01);
    const Exact joined = static_cast<Exact>(site.shafts.count) * site.shafts.outer_diameter_m;
    RC_ASSERT(storedNear(shaft::infiltrationArea(site.shafts, level),
                         kExactPi * joined * joined / 4.0L + kExactPi * level / 2.0L, 0.0L));

    const Exact outer = site.shafts.outer_diameter_m;
    const Exact inner = site.shafts.inner_diameter_m;
    RC_ASSERT(storedNear(shaft::requiredFilterPermeability(level, site.shafts, site.filtration_m_s),
                         (outer * outer + 2.0L * level * outer) / (inner * inner) * site.filtration_m_s,
                         0.0L));

    const shaft::Layers layers{.inlet_depth_m = number(0.1, 3.0, 0.05),
                               .filter_layer_m = number(0.1, 2.0, 0.05),
                               .sand_layer_m = number(0.1, 1.0, 0.05),
                               .has_sand_layer = *rc::gen::arbitrary<bool>()};
    const Exact sand = layers.has_sand_layer ? layers.sand_layer_m : 0.0L;
    RC_ASSERT(storedNear(shaft::depth(level, layers),
                         static_cast<Exact>(layers.inlet_depth_m) + level + layers.filter_layer_m + sand,
                         0.0L));

    const float seepage_path = number(0.5, 3.0, 0.1);
    RC_ASSERT(storedNear(shaft::requiredEmbedding(layers.inlet_depth_m, level, seepage_path),
                         static_cast<Exact>(layers.inlet_depth_m) + level + seepage_path, 0.0L));

    const float infiltration_area = number(0.5, 500.0, 0.01);
    const Rain rain{.duration_min = number(5.0, 120.0, 5.0), .intensity_l_s_ha = number(0.0, 500.0, 0.1)};
    const Exact inflow_m3_s = 1e-7L * site.reduced_area_m2 * rain.intensity_l_s_ha;
    const Exact soaked_m3_s = static_cast<Exact>(site.filtration_m_s) * infiltration_area / 2.0L;
    const Exact minutes = static_cast<Exact>(rain.duration_min) * site.safety_factor;
    RC_ASSERT(storedNear(shaft::storageVolume(site, infiltration_area, rain),
                         (inflow_m3_s - soaked_m3_s) * minutes, (inflow_m3_s + soaked_m3_s) * minutes));
}

RC_GTEST_PROP(ShaftGeometry, EquivalentCirclesHaveTheAreaOfTheRectangle, ()) {
    const float a = length();
    const float b = length();
    const float wall = number(0.0, 0.5, 0.01);
    const Exact inner = shaft_geometry::equivalentInnerDiameter(a, b);
    const Exact outer = shaft_geometry::equivalentOuterDiameter(a, b, wall);
    // Squaring doubles the relative error from storing the diameter.
    RC_ASSERT(
        near(kExactPi * inner * inner / 4.0L, static_cast<Exact>(a) * b, 0.0L, 2.0L * kSingleStore + 1e-14L));
    RC_ASSERT(near(kExactPi * outer * outer / 4.0L,
                   (static_cast<Exact>(a) + wall) * (static_cast<Exact>(b) + wall), 0.0L,
                   2.0L * kSingleStore + 1e-14L));
}

}  // namespace
}  // namespace mero::calc
