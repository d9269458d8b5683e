// SPDX-License-Identifier: MIT
/// Tests of the combined object: trench length under the swale, swale depth, area verdict.
#include "calc/swale_trench.h"

#include <gtest/gtest.h>

#include "calc/samples.h"
#include "calc/swale.h"
#include "support/errors.h"

namespace mero::calc::swale_trench {
namespace {

using mero::test::errorNumberOf;
using test::expectClose;
using test::kEmptyTable;
using test::kStorms;
using test::tableOf;

// The swale's own coefficient is 5e-5 m/s; its volume under the storms is
// (1100 * 90e-7 - 100 * 5e-5 / 2) * 30 * 60 * 1.2 = (0.0099 - 0.0025) * 2160 = 15.984 m3.
constexpr Balance kSite{
    .reduced_area_m2 = 1000.0F,
    .infiltration_area_m2 = 100.0F,
    .throttled_m3_s = 0.0F,
    .swale_volume_m3 = 15.984F,
    .safety_factor = 1.2F,
    .trench = {.width_m = 1.0F, .height_m = 1.5F, .storage_coefficient = 0.35F, .filtration_m_s = 1e-5F}};

TEST(SwaleTrench, SwaleVolumeUsesTheSwalesOwnCoefficient) {
    const CriticalRain storage = swale::storageVolume({.reduced_area_m2 = 1000.0F,
                                                       .infiltration_area_m2 = 100.0F,
                                                       .filtration_m_s = 5e-5F,
                                                       .safety_factor = 1.2F},
                                                      kStorms);
    expectClose(storage.maximum, 15.984);
    EXPECT_EQ(storage.rain, (Rain{30.0F, 90.0F}));
}

TEST(SwaleTrench, LengthIsTheLargestOfTheTable) {
    // 120 min, 28 l/(s.ha), T = 8640 s: inflow 1100 * 28e-7 = 0.00308, less 15.984 / 8640 = 0.00185, is
    // 0.00123 m3/s; one metre takes 0.525 / 8640 + 0.00000875 = 0.0000695139; 0.00123 / 0.0000695139.
    const CriticalRain length = trenchLength(kSite, kStorms);
    expectClose(length.maximum, 17.6943056943);
    EXPECT_EQ(length.rain, (Rain{120.0F, 28.0F}));
}

TEST(SwaleTrench, ThrottledOutflowShortensTheTrenchAndMovesTheCriticalRain) {
    // One litre per second less: 45 min, 65 l/(s.ha), T = 3240 s gives
    // (0.00715 - 0.001 - 0.00493333) / (0.525 / 3240 + 0.00000875) = 0.00121667 / 0.000170787.
    Balance throttled = kSite;
    throttled.throttled_m3_s = 0.001F;
    const CriticalRain length = trenchLength(throttled, kStorms);
    expectClose(length.maximum, 7.12388181079);
    EXPECT_EQ(length.rain, (Rain{45.0F, 65.0F}));
}

TEST(SwaleTrench, NoTrenchIsNeededWhenTheSwaleTakesEverything) {
    Balance large_swale = kSite;
    large_swale.swale_volume_m3 = 1000.0F;
    const CriticalRain length = trenchLength(large_swale, kStorms);
    EXPECT_EQ(length.maximum, 0.0);
    EXPECT_FALSE(length.rain.has_value());
}

TEST(SwaleTrench, RowsWithoutAPositiveDurationAreLeftOut) {
    EXPECT_FALSE(trenchLength(kSite, kEmptyTable).rain.has_value());
    EXPECT_FALSE(trenchLength(kSite, tableOf(Rain{0.0F, 500.0F}, Rain{-30.0F, 500.0F})).rain.has_value());
}

TEST(SwaleTrench, NothingToTakeTheWaterDividesByZero) {
    Balance no_factor = kSite;
    no_factor.safety_factor = 0.0F;
    EXPECT_EQ(errorNumberOf([&] { return trenchLength(no_factor, kStorms); }), 11);

    Balance sealed = kSite;
    sealed.trench.storage_coefficient = 0.0F;
    sealed.trench.filtration_m_s = 0.0F;
    EXPECT_EQ(errorNumberOf([&] { return trenchLength(sealed, kStorms); }), 11);
    // Nothing is divided when no row is used.
    EXPECT_EQ(errorNumberOf([&] { return trenchLength(sealed, kEmptyTable); }), 0);
}

TEST(SwaleTrench, SwaleDepthSpreadsTheVolumeOverTheTrench) {
    EXPECT_EQ(swaleDepth(16.0F, 20.0F, 2.0F), 0.4F);
    EXPECT_EQ(errorNumberOf([] { return swaleDepth(16.0F, 0.0F, 2.0F); }), 11);
    // The emptying time follows from that depth: 2 * 0.4 / (5e-5 * 3600) = 4.444 h
    expectClose(swale::emptyingTimeHours(0.4F, 5e-5F), 40.0 / 9.0);
}

TEST(SwaleTrench, AreaIsSufficientOnlyWhenStrictlySmaller) {
    EXPECT_EQ(judgeArea(designedArea(20.0F, 2.0F), 40.1F), AreaVerdict::Sufficient);
    EXPECT_EQ(judgeArea(designedArea(20.0F, 2.0F), 40.0F), AreaVerdict::Insufficient);
    EXPECT_EQ(judgeArea(designedArea(20.0F, 2.0F), 39.9F), AreaVerdict::Insufficient);
}

TEST(SwaleTrench, AreasAreComparedWithoutRoundingTheProduct) {
    // Single(0.1) * 3 = 0.30000000447, Single(0.3) = 0.30000001192; rounded to Single both would be equal.
    EXPECT_EQ(designedArea(3.0F, 0.1F), 0.30000000447034836);
    EXPECT_EQ(judgeArea(designedArea(3.0F, 0.1F), 0.3F), AreaVerdict::Sufficient);
}

}  // namespace
}  // namespace mero::calc::swale_trench
