// SPDX-License-Identifier: MIT
/// Units, values between the given ones, and what is no curve of rains.
#include "rain/rain_curve.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace mero::rain {
namespace {

TEST(RainUnits, AMillimetreInAQuarterOfAnHourIsElevenLitres) {
    // 10,000 l on a hectare in 900 s.
    EXPECT_DOUBLE_EQ(intensityOfDepth(1.0, 15.0), 10000.0 / 900.0);
    EXPECT_DOUBLE_EQ(depthOfIntensity(10000.0 / 900.0, 15.0), 1.0);
}

TEST(RainUnits, AMillimetreInAnHour) {
    EXPECT_DOUBLE_EQ(intensityOfRate(36.0), 100.0);
}

TEST(RainCurve, BetweenTwoDurationsLogarithmsAreOnALine) {
    // 20 is the geometric mean of 10 and 40, so its intensity is the geometric mean of 200 and 50.
    const RainCurve curve({{40, 50}, {10, 200}});
    EXPECT_NEAR(curve.at(20).value(), 100.0, 1e-12);
    EXPECT_FALSE(curve.isGiven(20));
    EXPECT_TRUE(curve.isGiven(40));
    EXPECT_EQ(curve.at(40), 50.0);
}

TEST(RainCurve, NothingIsExtrapolated) {
    const RainCurve curve({{10, 200}, {40, 50}});
    EXPECT_FALSE(curve.at(9.99).has_value());
    EXPECT_FALSE(curve.at(40.01).has_value());
}

TEST(RainCurve, RefusesWhatIsNoRain) {
    EXPECT_THROW(RainCurve({}), std::invalid_argument);
    EXPECT_THROW(RainCurve({{0, 100}}), std::invalid_argument);
    EXPECT_THROW(RainCurve({{5, 0}}), std::invalid_argument);
    EXPECT_THROW(RainCurve({{5, 100}, {5, 90}}), std::invalid_argument);
}

TEST(RainCurve, RemarksOnIntensitiesThatDoNotFallAndDepthsThatDo) {
    EXPECT_TRUE(RainCurve({{5, 300}, {10, 210}}).remarks().empty());
    EXPECT_EQ(RainCurve({{5, 300}, {10, 300}}).remarks(),
              std::vector<std::string>{"Intenzita pro 10 min není menší než pro 5 min."});
    // 300 for 5 minutes brings 9 mm, 140 for 10 minutes 8.4 mm.
    EXPECT_EQ(RainCurve({{5, 300}, {10, 140}}).remarks(),
              std::vector<std::string>{"Úhrn za 10 min je menší než za 5 min."});
}

}  // namespace
}  // namespace mero::rain
