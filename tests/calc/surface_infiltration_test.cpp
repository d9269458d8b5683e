// SPDX-License-Identifier: MIT
/// Tests of surface infiltration.
/// The formula is applied without a range check.
#include "calc/surface_infiltration.h"

#include <gtest/gtest.h>

#include "platform/numbers/number_text.h"
#include "support/errors.h"

namespace mero::calc::surface {
namespace {

using mero::test::errorNumberOf;

TEST(SurfaceInfiltration, BalancesRainAndSoil) {
    // 10^-4 m/s are 1000 l/(s.ha), half of them 500; 1000 / (1000 / 300 - 1) = 3000 / 7 = 428.571
    EXPECT_EQ(numbers::fixed(infiltrationArea(1000.0F, 1e-4F, 150.0F), 1), "428.6");
    EXPECT_EQ(numbers::fixed(infiltrationArea(1000.0F, 1e-4F, 150.0F), 3), "428.571");
}

TEST(SurfaceInfiltration, IsNegativeWhenTheSoilTakesLessThanTheRainBrings) {
    // 1000 / (100 / 200 - 1)
    EXPECT_EQ(numbers::fixed(infiltrationArea(1000.0F, 1e-5F, 100.0F), 1), "-2 000.0");
}

TEST(SurfaceInfiltration, WithoutSoilIsMinusTheReducedArea) {
    EXPECT_EQ(infiltrationArea(1000.0F, 0.0F, 100.0F), -1000.0F);
}

TEST(SurfaceInfiltration, WithoutAreaIsZero) {
    EXPECT_EQ(infiltrationArea(0.0F, 1e-4F, 150.0F), 0.0F);
}

TEST(SurfaceInfiltration, ExactBalanceDividesByZero) {
    // 1 * 10^7 / (2 * 5000000) - 1 = 0
    EXPECT_EQ(errorNumberOf([] { return infiltrationArea(1000.0F, 1.0F, 5e6F); }), 11);
    EXPECT_EQ(errorNumberOf([] { return infiltrationArea(0.0F, 1.0F, 5e6F); }), 11);
}

TEST(SurfaceInfiltration, MissingRainDividesByZero) {
    EXPECT_EQ(errorNumberOf([] { return infiltrationArea(1000.0F, 1e-4F, 0.0F); }), 11);
}

TEST(SurfaceInfiltration, BeyondASingleOverflows) {
    EXPECT_EQ(errorNumberOf([] { return infiltrationArea(3e38F, 1.0F, 4.99e6F); }), 6);
}

}  // namespace
}  // namespace mero::calc::surface
