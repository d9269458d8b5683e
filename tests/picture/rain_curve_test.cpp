// SPDX-License-Identifier: MIT
// The curve of the nine intensities follows whatever stands in the table.
#include "picture/rain_curve.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace mero::picture {
namespace {

using Rains = std::array<calc::Rain, calc::kRainRows>;

constexpr Rains kRains{
    {{5, 434}, {10, 320}, {15, 253}, {20, 210}, {30, 156}, {45, 113}, {60, 88}, {90, 61}, {120, 47}}};

std::vector<std::string> labels(const Chart& chart) {
    std::vector<std::string> texts;
    for (const ChartPoint& point : chart.points) {
        texts.push_back(point.label);
    }
    return texts;
}

TEST(RainCurve, HasAPointForEachRainAndMarksThePickedOne) {
    const Chart chart = rainCurve(kRains, {15, 253});
    ASSERT_TRUE(chart.drawable());
    EXPECT_EQ(chart.kind, Chart::Kind::Curve);
    ASSERT_EQ(chart.points.size(), 9U);
    EXPECT_EQ(chart.points[2].position, 15);
    EXPECT_EQ(chart.points[2].value, 253);
    EXPECT_EQ(chart.marked, 2U);
    EXPECT_EQ(chart.marked_text, "253");
    EXPECT_EQ(chart.summary,
              "Křivka intenzit deště pro doby trvání 5 až 120 min. Zvolený déšť: 15 min, 253 l/(s.ha).");
}

TEST(RainCurve, APickThatIsNoLongerInTheTableIsNotMarked) {
    EXPECT_FALSE(rainCurve(kRains, {15, 254}).marked);
    EXPECT_FALSE(rainCurve(kRains, {0, 0}).marked) << "none picked";
}

TEST(RainCurve, OddRowsAreLeftOutAndTheRestStandsInOrder) {
    Rains rains{};
    rains[0] = {60, 88};
    rains[1] = {0, 100};
    rains[2] = {-5, 100};
    rains[3] = {15, -1};
    rains[4] = {30, 1e38F};
    rains[5] = {1e38F, 5};
    rains[6] = {10, 300};
    rains[7] = {20, 0};
    EXPECT_THAT(labels(rainCurve(rains, {})), testing::ElementsAre("10", "20", "60"));
}

TEST(RainCurve, WithoutAnyIntensityThereIsAHint) {
    Rains rains = kRains;
    for (calc::Rain& rain : rains) {
        rain.intensity_l_s_ha = 0;
    }
    EXPECT_EQ(rainCurve(rains, {}).hint, "Křivka se nakreslí, až budou zadány intenzity deště.");
    for (calc::Rain& rain : rains) {
        rain.intensity_l_s_ha = std::numeric_limits<float>::max();
    }
    EXPECT_FALSE(rainCurve(rains, {}).drawable());
}

}  // namespace
}  // namespace mero::picture
