// SPDX-License-Identifier: MIT
/// Tests of the steps of the shaft design and of its three verdicts.
#include "calc/shaft.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/samples.h"
#include "support/errors.h"

namespace mero::calc::shaft {
namespace {

using mero::test::errorNumberOf;
using test::expectClose;
using test::kEmptyTable;
using test::kStorms;
using test::tableOf;

constexpr Shafts kTwoShafts{.count = 2, .outer_diameter_m = 1.2F, .inner_diameter_m = 1.0F};
constexpr Balance kSite{
    .reduced_area_m2 = 500.0F, .filtration_m_s = 1e-4F, .safety_factor = 1.2F, .shafts = kTwoShafts};

TEST(ShaftLevel, IsTheHighestOfTheTable) {
    // 45 min, 65 l/(s.ha): inflow 500 * 65e-7 = 0.00325; soaked pi * 2.4^2 / 4 * 10^-4 / 2 = 0.000226194678;
    // one metre takes pi * 2^2 / (45 * 4 * 60 * 1.2) + 2.4 * pi * 10^-4 / 4 = 0.000969627404 + 0.000188495562
    // = 0.001158122966; 0.003023805322 / 0.001158122966 = 2.61095362. The row before it gives 2.60132083.
    const CriticalRain level = waterLevel(kSite, kStorms);
    expectClose(level.maximum, 2.61095362378);
    EXPECT_EQ(level.rain, (Rain{45.0F, 65.0F}));
}

TEST(ShaftLevel, ShaftsActAsOneOfTheirJoinedDiameter) {
    Balance one = kSite;
    one.shafts = {.count = 1, .outer_diameter_m = 2.4F, .inner_diameter_m = 2.0F};
    EXPECT_EQ(waterLevel(one, kStorms).maximum, waterLevel(kSite, kStorms).maximum);
    EXPECT_EQ(infiltrationArea(one.shafts, 2.0F), infiltrationArea(kTwoShafts, 2.0F));
}

TEST(ShaftLevel, EarlierOfEqualRowsIsCritical) {
    // Without soil the level is intensity times duration; powers of two keep the two levels equal.
    Balance sealed = kSite;
    sealed.filtration_m_s = 0.0F;
    const auto table = tableOf(Rain{4.0F, 16.0F}, Rain{8.0F, 256.0F}, Rain{16.0F, 128.0F});
    EXPECT_EQ(waterLevel(sealed, table).rain, (Rain{8.0F, 256.0F}));
}

TEST(ShaftLevel, IsZeroWhenTheSoilKeepsUpWithEveryRain) {
    Balance gravel = kSite;
    gravel.filtration_m_s = 1.0F;
    const CriticalRain level = waterLevel(gravel, kStorms);
    EXPECT_EQ(level.maximum, 0.0);
    EXPECT_FALSE(level.rain.has_value());
}

TEST(ShaftLevel, RowsWithoutAPositiveDurationAreLeftOut) {
    EXPECT_EQ(waterLevel(kSite, kEmptyTable).maximum, 0.0);
    EXPECT_FALSE(waterLevel(kSite, kEmptyTable).rain.has_value());
    EXPECT_FALSE(waterLevel(kSite, tableOf(Rain{0.0F, 300.0F}, Rain{-5.0F, 300.0F})).rain.has_value());
}

TEST(ShaftLevel, SafetyFactorZeroDividesByZero) {
    Balance no_factor = kSite;
    no_factor.safety_factor = 0.0F;
    EXPECT_EQ(errorNumberOf([&] { return waterLevel(no_factor, kStorms); }), 11);
    EXPECT_EQ(errorNumberOf([&] { return waterLevel(no_factor, kEmptyTable); }), 0);
}

TEST(ShaftLevel, NothingToTakeTheWaterDividesByZero) {
    Balance none = kSite;
    none.shafts.count = 0;
    EXPECT_EQ(errorNumberOf([&] { return waterLevel(none, kStorms); }), 11);
}

TEST(ShaftArea, IsOuterSectionAndWallWithoutADiameter) {
    // pi * 2.4^2 / 4 = 4.52389355; pi * 2.61095362 / 2 = 4.10127648
    expectClose(infiltrationArea(kTwoShafts, 2.61095362F), 8.62517002);
    expectClose(infiltrationArea(kTwoShafts, 0.0F), 4.52389355);
    EXPECT_EQ(errorNumberOf([] { return infiltrationArea({1, 1e20F, 1.0F}, 0.0F); }), 6);
}

TEST(ShaftDepth, AddsTheSandLayerOnlyWhenThereIsOne) {
    Layers layers{
        .inlet_depth_m = 1.25F, .filter_layer_m = 0.5F, .sand_layer_m = 0.25F, .has_sand_layer = false};
    EXPECT_EQ(depth(2.5F, layers), 4.25F);
    layers.has_sand_layer = true;
    EXPECT_EQ(depth(2.5F, layers), 4.5F);
}

TEST(ShaftDepth, RequiredEmbeddingEndsBelowTheSeepagePath) {
    EXPECT_EQ(requiredEmbedding(1.25F, 2.5F, 1.5F), 5.25F);
    EXPECT_EQ(errorNumberOf([] { return requiredEmbedding(3e38F, 3e38F, 1.5F); }), 6);
}

TEST(ShaftVolume, TakesTheDurationInMinutes) {
    // (0.00325 - 10^-4 * 8.63 / 2) * 45 * 1.2 = (0.00325 - 0.0004315) * 54 = 0.152199
    expectClose(storageVolume(kSite, 8.63F, {45.0F, 65.0F}), 0.152199);
}

TEST(ShaftFilter, PassesWhatTheSubsoilTakes) {
    // (1.2^2 + 2 * 2.5 * 1.2) / 1^2 * 10^-4 = 7.44 * 10^-4; the number of shafts does not matter
    expectClose(requiredFilterPermeability(2.5F, kTwoShafts, 1e-4F), 7.44e-4);
    // inner diameter 0.8: 7.44 / 0.64
    expectClose(requiredFilterPermeability(2.5F, {3, 1.2F, 0.8F}, 1e-4F), 1.1625e-3);
    EXPECT_EQ(errorNumberOf([] { return requiredFilterPermeability(2.5F, {1, 1.2F, 0.0F}, 1e-4F); }), 11);
}

TEST(ShaftVerdicts, GroundwaterThatIsNotGivenPasses) {
    EXPECT_EQ(judgeGroundwater(0.0F, 5.25F), GroundwaterVerdict::DeepEnough);
}

TEST(ShaftVerdicts, GroundwaterMustLieAtTheRequiredDepthWhateverItsSign) {
    EXPECT_EQ(judgeGroundwater(5.25F, 5.25F), GroundwaterVerdict::DeepEnough);
    EXPECT_EQ(judgeGroundwater(-5.25F, 5.25F), GroundwaterVerdict::DeepEnough);
    EXPECT_EQ(judgeGroundwater(5.24F, 5.25F), GroundwaterVerdict::TooHigh);
    EXPECT_EQ(judgeGroundwater(-5.24F, 5.25F), GroundwaterVerdict::TooHigh);
}

TEST(ShaftVerdicts, BottomMayCloseToHalfAMetre) {
    EXPECT_EQ(judgeBottom(4.75F, 5.25F), BottomVerdict::FarEnough);
    EXPECT_EQ(judgeBottom(4.76F, 5.25F), BottomVerdict::TooClose);
    EXPECT_EQ(judgeBottom(4.0F, 5.25F), BottomVerdict::FarEnough);
}

TEST(ShaftVerdicts, FilterLimitIsIncludedInSinglePrecision) {
    EXPECT_EQ(judgeFilter(0.001F), FilterVerdict::Sufficient);
    EXPECT_EQ(judgeFilter(std::nextafter(0.001F, 1.0F)), FilterVerdict::TooPermeable);
    EXPECT_EQ(judgeFilter(0.0011F), FilterVerdict::TooPermeable);
    // The field rounds this value to 1.0E-03 and stores that; unrounded it is too large.
    EXPECT_EQ(judgeFilter(0.00104F), FilterVerdict::TooPermeable);
}

}  // namespace
}  // namespace mero::calc::shaft
