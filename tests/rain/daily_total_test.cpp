// SPDX-License-Identifier: MIT
/// Rains reduced from the total of a day.
#include "rain/daily_total.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace mero::rain {
namespace {

TEST(DailyTotal, FiftyMillimetresOnceInFiveYearsGive221LitresInAQuarterOfAnHour) {
    EXPECT_EQ(std::round(intensityOfDepth(reducedDepth(50, 5, 15), 15)), 221);
}

TEST(DailyTotal, ADayGivesBackItsTotal) {
    for (const int years : reducibleReturnPeriods()) {
        EXPECT_NEAR(reducedDepth(50, years, 1440), 50, 0.001 * 50) << years;
    }
}

TEST(DailyTotal, TheCoefficientsChangeAt40And120Minutes) {
    // 30 * 0.169 * 39^0.352 and 30 * 0.300 * 40^0.197, with another program.
    EXPECT_NEAR(reducedDepth(30, 20, 39), 18.41038, 0.00001);
    EXPECT_NEAR(reducedDepth(30, 20, 40), 18.61437, 0.00001);
    // 30 * 0.300 * 119^0.197 and 30 * 0.463 * 120^0.106.
    EXPECT_NEAR(reducedDepth(30, 20, 119), 23.07413, 0.00001);
    EXPECT_NEAR(reducedDepth(30, 20, 120), 23.07254, 0.00001);
}

TEST(DailyTotal, RefusesWhatTheReductionDoesNotKnow) {
    EXPECT_THROW(static_cast<void>(reducedDepth(50, 3, 15)), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(reducedDepth(50, 5, 4)), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(reducedDepth(50, 5, 1441)), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(reducedDepth(0, 5, 15)), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(reducedDepth(std::numeric_limits<double>::quiet_NaN(), 5, 15)),
                 std::invalid_argument);
    EXPECT_THROW(static_cast<void>(reducedDepth(std::numeric_limits<double>::infinity(), 5, 15)),
                 std::invalid_argument);
}

TEST(DailyTotal, CurvesFallAndTheirDepthsRise) {
    for (const int years : reducibleReturnPeriods()) {
        const RainCurve curve = curveOfDailyTotal(60, years);
        EXPECT_TRUE(curve.remarks().empty()) << years << ": " << curve.remarks().front();
        EXPECT_EQ(curve.points().front().duration_min, 5);
        EXPECT_EQ(curve.points().back().duration_min, 1440);
    }
}

}  // namespace
}  // namespace mero::rain
