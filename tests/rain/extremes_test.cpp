// SPDX-License-Identifier: MIT
/// Maxima of moving windows, of years that count, and peaks that are events of their own.
#include "rain/extremes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace mero::rain {
namespace {

constexpr std::size_t kIntervalsOfDay = 144;
constexpr float kMissing = std::numeric_limits<float>::quiet_NaN();

/// Dry years in steps of ten minutes.
MeasuredSeries dryYears(int first, int last) {
    const Minute begin = beginOfYear(first);
    const auto length = static_cast<std::size_t>((beginOfYear(last + 1) - begin) / 10);
    return {begin, 10, std::vector<float>(length, 0.0F)};
}

TEST(Extremes, TheWindowMovesByOneInterval) {
    MeasuredSeries series = dryYears(2023, 2023);
    series.depths_mm[1000] = 2.0F;
    series.depths_mm[1001] = 5.0F;
    series.depths_mm[1002] = 4.0F;
    const auto extremes = extremesOf(series, std::array{10, 20, 30, 60});
    ASSERT_EQ(extremes.size(), 4U);
    EXPECT_DOUBLE_EQ(extremes[0].annual.at(0).depth_mm, 5.0);
    EXPECT_DOUBLE_EQ(extremes[1].annual.at(0).depth_mm, 9.0);
    EXPECT_DOUBLE_EQ(extremes[2].annual.at(0).depth_mm, 11.0);
    EXPECT_DOUBLE_EQ(extremes[3].annual.at(0).depth_mm, 11.0);
}

TEST(Extremes, DurationsBetweenTheIntervalsAreLeftOut) {
    const auto extremes = extremesOf(dryYears(2023, 2023), std::array{5, 15, 20});
    ASSERT_EQ(extremes.size(), 1U);
    EXPECT_EQ(extremes[0].duration_min, 20);
}

TEST(Extremes, AWindowWithAGapIsLeftOut) {
    MeasuredSeries series = dryYears(2023, 2023);
    series.depths_mm[1000] = 5.0F;
    series.depths_mm[1001] = kMissing;
    series.depths_mm[1002] = 5.0F;
    series.depths_mm[1003] = 1.0F;
    const auto extremes = extremesOf(series, std::array{20, 30});
    EXPECT_DOUBLE_EQ(extremes[0].annual.at(0).depth_mm, 6.0);
    EXPECT_DOUBLE_EQ(extremes[1].annual.at(0).depth_mm, 6.0);
}

TEST(Extremes, AYearWithATenthMissingDoesNotCount) {
    MeasuredSeries series = dryYears(2022, 2023);
    const std::size_t summer = 150 * kIntervalsOfDay;
    for (std::size_t i = 0; i < 37 * kIntervalsOfDay; ++i) {  // 37 of 365 days
        series.depths_mm[summer + i] = kMissing;
    }
    const auto coverage = coverageOf(series);
    ASSERT_EQ(coverage.size(), 2U);
    EXPECT_NEAR(coverage[0].share, 328.0 / 365.0, 1e-9);
    EXPECT_FALSE(coverage[0].counts());
    EXPECT_TRUE(coverage[1].counts());
    const auto extremes = extremesOf(series, std::array{10});
    ASSERT_EQ(extremes[0].annual.size(), 1U);
    EXPECT_EQ(extremes[0].annual[0].year, 2023);
}

TEST(Extremes, PeaksOfOneEventCountOnce) {
    MeasuredSeries series = dryYears(2023, 2023);
    // Two bursts three hours apart are one event, the one of another day is the second.
    series.depths_mm[10 * kIntervalsOfDay] = 8.0F;
    series.depths_mm[10 * kIntervalsOfDay + 18] = 7.0F;
    series.depths_mm[40 * kIntervalsOfDay] = 3.0F;
    const auto extremes = extremesOf(series, std::array{10});
    EXPECT_EQ(extremes[0].peaks_mm, (std::vector<double>{8.0, 3.0}));
}

TEST(Extremes, LongDurationsJoinEventsThatAShortOneSeparates) {
    MeasuredSeries series = dryYears(2023, 2023);
    series.depths_mm[10 * kIntervalsOfDay] = 8.0F;
    series.depths_mm[10 * kIntervalsOfDay + 48] = 7.0F;  // eight hours later
    EXPECT_EQ(extremesOf(series, std::array{10})[0].peaks_mm, (std::vector<double>{8.0, 7.0}));
    EXPECT_EQ(extremesOf(series, std::array{720})[0].peaks_mm, (std::vector<double>{15.0}));
}

TEST(Extremes, ThePartialSeriesKeepsTheHighest) {
    MeasuredSeries series = dryYears(2023, 2023);
    for (std::size_t event = 0; event < 9; ++event) {
        series.depths_mm[(10 + 20 * event) * kIntervalsOfDay] = 1.0F + static_cast<float>(event);
    }
    // Euler's number for a year, rounded down.
    EXPECT_EQ(extremesOf(series, std::array{10})[0].peaks_mm, (std::vector<double>{9.0, 8.0}));
}

TEST(Extremes, TheCorrectionFades) {
    EXPECT_DOUBLE_EQ(intervalCorrection(1), 1.14);
    EXPECT_DOUBLE_EQ(intervalCorrection(2), 1.07);
    EXPECT_DOUBLE_EQ(intervalCorrection(4), 1.03);
    EXPECT_DOUBLE_EQ(intervalCorrection(5), 1.0);
    EXPECT_DOUBLE_EQ(intervalCorrection(144), 1.0);
}

}  // namespace
}  // namespace mero::rain
