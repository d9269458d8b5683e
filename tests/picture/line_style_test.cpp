// SPDX-License-Identifier: MIT
/// Series can be told apart: by their dashes, and those of the same dashes by their marks.
#include "picture/line_style.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "picture/line_chart.h"

namespace mero::picture {
namespace {

std::vector<double> dashesOfSeries(std::size_t series) {
    return dashesOf({Stroke::Series, {}, series});
}

TEST(LineStyle, FourSeriesDifferByTheirDashes) {
    std::set<std::vector<double>> dashes;
    for (std::size_t n = 0; n < 4; ++n) {
        dashes.insert(dashesOfSeries(n));
    }
    EXPECT_EQ(dashes.size(), 4U);
    EXPECT_TRUE(dashesOfSeries(0).empty());
}

TEST(LineStyle, TheMarksAreCirclesASquareAndATriangle) {
    const auto corners = [](std::size_t n) { return cornersOf(PlacedMark{n, {10, 10}, 2}); };
    EXPECT_TRUE(corners(0).empty());
    EXPECT_TRUE(corners(1).empty());
    EXPECT_THAT(corners(2), testing::ElementsAre(Point{8, 8}, Point{12, 8}, Point{12, 12}, Point{8, 12}));
    EXPECT_EQ(corners(3).size(), 3U);
    EXPECT_TRUE(isFilled({0, {}, 2}));
    EXPECT_FALSE(isFilled({1, {}, 2}));
}

TEST(LineStyle, AMonochromeCopyTellsSixteenSeriesApart) {
    std::set<std::tuple<std::vector<double>, std::size_t, bool>> styles;
    for (std::size_t n = 0; n < 16; ++n) {
        styles.emplace(dashesOfSeries(n), cornersOf(PlacedMark{n, {}, 1}).size(), isFilled({n, {}, 1}));
    }
    EXPECT_EQ(styles.size(), 16U);
}

TEST(LineStyle, AllSeriesOfAChartDiffer) {
    std::set<std::tuple<std::vector<double>, std::size_t, bool, std::uint32_t>> styles;
    for (std::size_t n = 0; n < kMostSeries; ++n) {
        styles.emplace(dashesOfSeries(n), cornersOf(PlacedMark{n, {}, 1}).size(), isFilled({n, {}, 1}),
                       seriesColour(n));
    }
    EXPECT_EQ(styles.size(), kMostSeries);
}

TEST(LineStyle, GroundwaterIsDashedAndLinesAreThinnerThanTheGround) {
    EXPECT_FALSE(dashesOf({Stroke::Groundwater, {}}).empty());
    EXPECT_TRUE(dashesOf({Stroke::Outline, {}}).empty());
    EXPECT_GT(strokeWidth(Stroke::Ground, 14), strokeWidth(Stroke::Outline, 14));
    EXPECT_GT(strokeWidth(Stroke::GridLine, 14), strokeWidth(Stroke::FineGridLine, 14));
    EXPECT_DOUBLE_EQ(strokeWidth(Stroke::Outline, 20), 2.0);
}

}  // namespace
}  // namespace mero::picture
