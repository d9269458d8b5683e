// SPDX-License-Identifier: MIT
/// Tests of the infiltration tank: required storage, shape, verdicts.
#include "calc/tank.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/samples.h"
#include "support/errors.h"

namespace mero::calc::tank {
namespace {

using mero::test::errorNumberOf;
using test::expectClose;
using test::kEmptyTable;
using test::kStorms;
using test::tableOf;

constexpr Balance kSite{.reduced_area_m2 = 10000.0F, .infiltration_flow_m3_s = 0.005F, .safety_factor = 1.2F};

// Bottom 10 x 5, depth 2, slope 1 : 1.5, so the top is 6 m longer and wider.
constexpr Shape kSloped{.bottom_length_m = 10.0F,
                        .bottom_width_m = 5.0F,
                        .top_length_m = 16.0F,
                        .top_width_m = 11.0F,
                        .depth_m = 2.0F};

TEST(TankFlow, IsTheSpecificIntensityOverTheReducedArea) {
    // 1 ha * 5 l/(s.ha) = 5 l/s
    EXPECT_EQ(infiltrationFlow(5.0F, 10000.0F), 0.005F);
    EXPECT_EQ(infiltrationFlow(5.0F, 0.0F), 0.0F);
}

TEST(TankStorage, IsTheLargestBalanceOfTheTable) {
    // 90 min, 36 l/(s.ha): (0.036 - 0.005) * 90 * 60 * 1.2 = 200.88; the row after it gives 198.72.
    const CriticalRain storage = requiredStorage(kSite, kStorms);
    expectClose(storage.maximum, 200.88);
    EXPECT_EQ(storage.rain, (Rain{90.0F, 36.0F}));
}

TEST(TankStorage, IsZeroWhenTheFlowKeepsUpWithEveryRain) {
    Balance fast = kSite;
    fast.infiltration_flow_m3_s = 0.5F;
    EXPECT_EQ(requiredStorage(fast, kStorms).maximum, 0.0);
    EXPECT_FALSE(requiredStorage(fast, kStorms).rain.has_value());
    EXPECT_FALSE(requiredStorage(kSite, kEmptyTable).rain.has_value());
}

TEST(TankStorage, TakesRowsWithANegativeDuration) {
    // (0 - 0.005) * -10 * 60 * 1.2 = 3.6
    const CriticalRain storage = requiredStorage(kSite, tableOf(Rain{-10.0F, 0.0F}));
    expectClose(storage.maximum, 3.6);
    EXPECT_EQ(storage.rain, (Rain{-10.0F, 0.0F}));
}

TEST(TankShape, SidesRunOutOnBothSides) {
    EXPECT_EQ(topSide(10.0F, 2.0F, 1.5F), 16.0F);
    EXPECT_EQ(topSide(5.0F, 2.0F, 1.5F), 11.0F);
    EXPECT_EQ(topSide(5.0F, 2.0F, 0.0F), 5.0F);
    EXPECT_EQ(errorNumberOf([] { return topSide(1.0F, 1e20F, 1e20F); }), 6);
}

TEST(TankShape, VolumeIsAFrustumOfAPyramid) {
    // 2 / 3 * (16 * 11 + 10 * 5 + sqrt(16 * 10 * 5 * 11)) = 2 / 3 * (226 + 93.8083152) = 213.2055435
    expectClose(volume(kSloped), 213.2055435);
}

TEST(TankShape, VolumeIsLessThanThatOfABasinWithEqualSlopes) {
    // Depth h, run of the slopes d: h * (L * B + d * (L + B) + 4 / 3 * d^2) with h = 1.5 and d = 3.
    // Bottom 30 x 10: 1.5 * (300 + 120 + 12) = 648; the formula 1.5 / 3 * (36 * 16 + 300 + sqrt(172800)).
    expectClose(volume({30.0F, 10.0F, 36.0F, 16.0F, 1.5F}), 645.8460969);
    EXPECT_NEAR(648.0 / 645.8460969, 1.003, 0.0005);
    // Bottom 100 x 1: 1.5 * (100 + 303 + 12) = 622.5; the formula 1.5 / 3 * (106 * 7 + 100 + sqrt(74200)).
    expectClose(volume({100.0F, 1.0F, 106.0F, 7.0F, 1.5F}), 557.1983846);
    EXPECT_NEAR(622.5 / 557.1983846, 1.12, 0.005);
}

TEST(TankShape, VerticalSidesHoldTheBox) {
    EXPECT_EQ(volume({10.0F, 5.0F, 10.0F, 5.0F, 2.0F}), 100.0F);
    EXPECT_EQ(volume({12.5F, 7.25F, 12.5F, 7.25F, 1.5F}), 135.9375F);
}

TEST(TankShape, NegativeProductOfTheSidesHasNoRoot) {
    EXPECT_EQ(errorNumberOf([] { return volume({10.0F, 5.0F, 16.0F, -1.0F, 2.0F}); }), 5);
}

TEST(TankVerdicts, EqualVolumeIsSufficient) {
    EXPECT_EQ(judgeVolume(200.88F, 200.88F), VolumeVerdict::Sufficient);
    EXPECT_EQ(judgeVolume(200.87F, 200.88F), VolumeVerdict::TooSmall);
    EXPECT_EQ(judgeVolume(213.2F, 200.88F), VolumeVerdict::Sufficient);
}

TEST(TankProof, CountsOnAFifthOfTheCoefficientWithoutSettling) {
    EXPECT_EQ(effectiveFiltration(0.5F, true), 0.5);
    EXPECT_EQ(effectiveFiltration(0.5F, false), 0.1);
}

TEST(TankProof, MeanFlowLiesBetweenBottomAndTop) {
    // bottom 50 * 10^-4 / 2 = 0.0025, top 176 * 10^-4 / 2 = 0.0088, mean 0.00565
    expectClose(meanInfiltrationFlow(kSloped, effectiveFiltration(1e-4F, true)), 0.00565);
    expectClose(meanInfiltrationFlow(kSloped, effectiveFiltration(1e-4F, false)), 0.00113);
}

TEST(TankProof, EqualFlowIsProven) {
    EXPECT_EQ(judgeInfiltration(static_cast<double>(0.005F), 0.005F), InfiltrationVerdict::Proven);
    EXPECT_EQ(judgeInfiltration(0.00565, 0.005F), InfiltrationVerdict::Proven);
    EXPECT_EQ(judgeInfiltration(0.00113, 0.005F), InfiltrationVerdict::Exceeded);
    const double just_below = std::nextafter(static_cast<double>(0.005F), 0.0);
    EXPECT_EQ(judgeInfiltration(just_below, 0.005F), InfiltrationVerdict::Exceeded);
}

}  // namespace
}  // namespace mero::calc::tank
