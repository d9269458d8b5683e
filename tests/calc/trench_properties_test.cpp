// SPDX-License-Identifier: MIT
/// Properties of the trench, of the trench under a swale and of its drain over random sites.
/// Compares with extended precision, and checks relations that hold for every site.
#include <gtest/gtest.h>

#include "calc/drain.h"
#include "calc/properties.h"
#include "calc/swale_trench.h"
#include "calc/trench.h"

namespace mero::calc {
namespace {

using namespace test;

swale_trench::Balance combinedSite() {
    return {.reduced_area_m2 = area(),
            .infiltration_area_m2 = number(1.0, 4000.0, 0.1),
            .throttled_m3_s = number(0.0, 0.02, 0.001),
            .swale_volume_m3 = number(0.0, 200.0, 0.1),
            .safety_factor = safetyFactor(),
            .trench = trenchSection()};
}

Exact exactUptake(const TrenchSection& section, Exact seconds) {
    const Exact width = section.width_m;
    const Exact height = section.height_m;
    return width * height * section.storage_coefficient / seconds +
           (width + height / 2.0L) * section.filtration_m_s / 2.0L;
}

RC_GTEST_PROP(CombinedLength, AgreesWithExtendedPrecision, ()) {
    const swale_trench::Balance site = combinedSite();
    const Table table = rains();
    const Exact collecting = static_cast<Exact>(site.reduced_area_m2) + site.infiltration_area_m2;
    const auto seconds = [&](const Rain& rain) {
        return static_cast<Exact>(rain.duration_min) * 60.0L * site.safety_factor;
    };
    const ExactSearch expected(
        table, true,
        [&](const Rain& rain) {
            return (collecting * 1e-7L * rain.intensity_l_s_ha - site.throttled_m3_s -
                    site.swale_volume_m3 / seconds(rain)) /
                   exactUptake(site.trench, seconds(rain));
        },
        [&](const Rain& rain) {
            return (collecting * 1e-7L * rain.intensity_l_s_ha + site.throttled_m3_s +
                    site.swale_volume_m3 / seconds(rain)) /
                   exactUptake(site.trench, seconds(rain));
        });
    expected.check(swale_trench::trenchLength(site, table));
}

RC_GTEST_PROP(CombinedLength, DoesNotGrowWithTheSwaleOrTheThrottledOutflow, ()) {
    const swale_trench::Balance site = combinedSite();
    const Table table = rains();
    swale_trench::Balance relieved = site;
    relieved.swale_volume_m3 += number(0.0, 100.0, 0.1);
    relieved.throttled_m3_s += number(0.0, 0.02, 0.001);
    RC_ASSERT(swale_trench::trenchLength(relieved, table).maximum <=
              swale_trench::trenchLength(site, table).maximum);
}

RC_GTEST_PROP(CombinedLength, IsTheTrenchAloneWithoutSwaleAndOutflow, ()) {
    swale_trench::Balance site = combinedSite();
    site.infiltration_area_m2 = 0.0F;
    site.throttled_m3_s = 0.0F;
    site.swale_volume_m3 = 0.0F;
    const Table table = rains();
    const trench::Balance alone{
        .reduced_area_m2 = site.reduced_area_m2, .safety_factor = site.safety_factor, .section = site.trench};
    RC_ASSERT(swale_trench::trenchLength(site, table).maximum ==
              trench::requiredLength(alone, table).maximum);
}

RC_GTEST_PROP(SwaleOverTrench, DepthSpreadsTheVolume, ()) {
    const float volume = number(0.0, 200.0, 0.1);
    const float trench_length = number(0.1, 500.0, 0.1);
    const float width = length();
    RC_ASSERT(storedNear(swale_trench::swaleDepth(volume, trench_length, width),
                         volume / (static_cast<Exact>(trench_length) * width), 0.0L));
}

trench::Balance trenchSite() {
    return {.reduced_area_m2 = area(), .safety_factor = safetyFactor(), .section = trenchSection()};
}

RC_GTEST_PROP(TrenchLength, AgreesWithExtendedPrecision, ()) {
    const trench::Balance site = trenchSite();
    const Table table = rains();
    const auto value = [&](const Rain& rain) {
        const Exact seconds = static_cast<Exact>(rain.duration_min) * 60.0L * site.safety_factor;
        return 1e-7L * site.reduced_area_m2 * rain.intensity_l_s_ha / exactUptake(site.section, seconds);
    };
    ExactSearch(table, true, value, value).check(trench::requiredLength(site, table));
}

RC_GTEST_PROP(TrenchLength, DoesNotGrowWithAFasterSoilOrMorePores, ()) {
    const trench::Balance site = trenchSite();
    const Table table = rains();
    trench::Balance faster = site;
    faster.section.filtration_m_s += filtration();
    faster.section.storage_coefficient += porosity();
    RC_ASSERT(trench::requiredLength(faster, table).maximum <= trench::requiredLength(site, table).maximum);
}

RC_GTEST_PROP(TrenchLength, GrowsWithTheDrainedArea, ()) {
    const trench::Balance site = trenchSite();
    const Table table = rains();
    trench::Balance larger = site;
    larger.reduced_area_m2 += area();
    RC_ASSERT(trench::requiredLength(larger, table).maximum >= trench::requiredLength(site, table).maximum);
}

RC_GTEST_PROP(TrenchVolume, AgreesWithExtendedPrecision, ()) {
    const trench::Balance site = trenchSite();
    const float trench_length = number(0.0, 500.0, 0.1);
    const Rain rain{.duration_min = number(5.0, 120.0, 5.0), .intensity_l_s_ha = number(0.0, 500.0, 0.1)};
    const Exact seconds = static_cast<Exact>(rain.duration_min) * 60.0L * site.safety_factor;
    const Exact inflow_m3_s = 1e-7L * site.reduced_area_m2 * rain.intensity_l_s_ha;
    const Exact wetted = static_cast<Exact>(site.section.height_m) / 2.0L + site.section.width_m;
    const Exact soaked_m3_s = wetted * trench_length * site.section.filtration_m_s / 2.0L;
    RC_ASSERT(storedNear(trench::storageVolume(site, trench_length, rain),
                         (inflow_m3_s - soaked_m3_s) * seconds, (inflow_m3_s + soaked_m3_s) * seconds));
    RC_ASSERT(storedNear(trench::infiltrationArea(site.section.height_m, site.section.width_m, trench_length),
                         wetted * trench_length, 0.0L));
}

RC_GTEST_PROP(TrenchDrain, AgreesWithExtendedPrecision, ()) {
    const trench::DrainOutlet outlet{.openings_cm2_m = number(0.0, 200.0, 0.5),
                                     .pipe_count = number(0.0, 5.0, 1.0),
                                     .velocity_m_s = number(0.0, 2.0, 0.01)};
    const float trench_length = number(0.0, 500.0, 0.1);
    const Exact expected = static_cast<Exact>(outlet.openings_cm2_m) / 10000.0L * outlet.pipe_count *
                           outlet.velocity_m_s * trench_length * 1000.0L;
    RC_ASSERT(storedNear(trench::drainOutflow(outlet, trench_length), expected, 0.0L));
}

RC_GTEST_PROP(DrainPipes, AgreeWithExtendedPrecision, ()) {
    const drain::Pipes pipes{.inner_diameter_mm = number(0.0, 500.0, 1.0),
                             .outer_diameter_mm = number(0.0, 600.0, 1.0),
                             .count = number(0.0, 4.0, 1.0)};
    const float pores = porosity();
    const float width = length();
    const float height = length();
    const Exact inner = pipes.inner_diameter_mm / 1000.0L;
    const Exact outer = pipes.outer_diameter_mm / 1000.0L;
    const Exact section = static_cast<Exact>(width) * height;
    const Exact interiors = inner * inner * pipes.count / pores * kExactPi / 4.0L;
    const Exact bodies = outer * outer * pipes.count * kExactPi / 4.0L;
    RC_ASSERT(storedNear(drain::storageCoefficient(pipes, pores, width, height),
                         (interiors - bodies + section) * pores / section,
                         (interiors + bodies + section) * pores / section));
}

RC_GTEST_PROP(DrainPipes, WithoutADiameterChangeNothing, ()) {
    // Two roundings in double cannot move the result to another Single than the porosity itself.
    const float pores = porosity();
    const drain::Pipes none{
        .inner_diameter_mm = 0.0F, .outer_diameter_mm = 0.0F, .count = number(0.0, 4.0, 1.0)};
    RC_ASSERT(drain::storageCoefficient(none, pores, length(), length()) == pores);
}

RC_GTEST_PROP(ThrottledOutflow, AgreesWithExtendedPrecision, ()) {
    const float reduced_area = area();
    const float specific = number(0.0, 50.0, 0.1);
    RC_ASSERT(storedNear(drain::throttledOutflow(reduced_area, specific),
                         reduced_area / 10000.0L * specific / 1000.0L, 0.0L));
}

}  // namespace
}  // namespace mero::calc
