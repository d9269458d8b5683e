// SPDX-License-Identifier: MIT
/// The layout of line charts: where lines and marks lie, what tells lines apart, where the texts stand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/arrange.h"
#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

/// Lines of text are 16 high, characters 8 wide. The plot lies from (90, 64) to (630, 484).
const Sheet kSheet{900, 560};

TextSizes largeSizes() {
    TextSizes sizes = plainSizes();
    sizes.line_height = 16;
    return sizes;
}

Drawing drawingOf(const LineChart& chart) {
    return arrange(chart, kSheet, largeSizes());
}

/// A line from the lower left corner of the plot to the upper right one.
LineChart diagonal() {
    LineChart chart;
    chart.x_values = {0.0, 60.0};
    chart.series.push_back({"one", {0.0, 30.0}});
    return chart;
}

LineChart withSeries(std::size_t count) {
    LineChart chart = diagonal();
    chart.legend = "legend";
    chart.series.assign(count, chart.series[0]);
    return chart;
}

LineChart withPoints(std::size_t count) {
    LineChart chart;
    chart.series.emplace_back();
    for (std::size_t i = 0; i < count; ++i) {
        chart.x_values.push_back(static_cast<double>(i));
        chart.series[0].values.emplace_back(1.0);
    }
    return chart;
}

std::vector<PlacedLine> linesOf(const Drawing& drawing, Stroke stroke) {
    std::vector<PlacedLine> lines;
    std::copy_if(drawing.lines.begin(), drawing.lines.end(), std::back_inserter(lines),
                 [&](const PlacedLine& line) { return line.stroke == stroke; });
    return lines;
}

/// The text's place; fails when it is not there.
PlacedText textOf(const Drawing& drawing, const std::string& text) {
    const auto found = std::find_if(drawing.texts.begin(), drawing.texts.end(),
                                    [&](const PlacedText& each) { return each.text == text; });
    EXPECT_NE(found, drawing.texts.end()) << text;
    return found == drawing.texts.end() ? PlacedText{} : *found;
}

double middle(double from, double to) {
    return (from + to) / 2.0;
}

TEST(ArrangeLineChart, ALineRunsBetweenTheCornersOfThePlot) {
    const Drawing drawing = drawingOf(diagonal());
    const auto lines = linesOf(drawing, Stroke::Series);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0].points, ElementsAre(Point{90, 484}, Point{630, 64}));
    ASSERT_EQ(drawing.marks.size(), 2U);
    EXPECT_EQ(drawing.marks[0].centre, (Point{90, 484}));
    EXPECT_EQ(drawing.marks[1].centre, (Point{630, 64}));
    // 10 of 60 is a sixth of 540: the second tick of the axis.
    const Box tick = textOf(drawing, "10").box;
    EXPECT_DOUBLE_EQ(middle(tick.left, tick.right), 180);
    EXPECT_THAT(textsOf(drawing), Contains("30"));
}

TEST(ArrangeLineChart, TicksStandBesideTheirGridLines) {
    const Drawing drawing = drawingOf(diagonal());
    // 7 ticks on each axis, the lowest of each on the axis itself.
    EXPECT_EQ(linesOf(drawing, Stroke::GridLine).size(), 12U);
    const auto axes = linesOf(drawing, Stroke::Axis);
    ASSERT_EQ(axes.size(), 2U);
    EXPECT_THAT(axes[0].points, ElementsAre(Point{90, 64}, Point{90, 490}));
    EXPECT_THAT(axes[1].points, ElementsAre(Point{84, 484}, Point{630, 484}));
    const Box tick = textOf(drawing, "25").box;
    EXPECT_DOUBLE_EQ(middle(tick.top, tick.bottom), 64 + 420.0 / 6);
    EXPECT_DOUBLE_EQ(tick.right, 80);
}

TEST(ArrangeLineChart, TitlesAndLabelsStandAroundThePlot) {
    LineChart chart = diagonal();
    chart.title = "title";
    chart.subtitle = "below";
    chart.x.label = "across";
    chart.y.label = "upwards";
    chart.summary = "A line.";
    const Drawing drawing = drawingOf(chart);
    EXPECT_EQ(drawing.summary, "A line.");
    EXPECT_EQ(textOf(drawing, "title").box.left, 90);
    EXPECT_EQ(textOf(drawing, "title").emphasis, Emphasis::Strong);
    EXPECT_GT(textOf(drawing, "title").size, 1);
    EXPECT_LE(textOf(drawing, "title").box.bottom, textOf(drawing, "below").box.top);
    EXPECT_LE(textOf(drawing, "below").box.bottom, 64);
    const Box across = textOf(drawing, "across").box;
    EXPECT_DOUBLE_EQ(middle(across.left, across.right), 360);
    EXPECT_GT(across.top, 484);
    const PlacedText upwards = textOf(drawing, "upwards");
    EXPECT_TRUE(upwards.upright);
    EXPECT_DOUBLE_EQ(middle(upwards.box.top, upwards.box.bottom), 274);
    EXPECT_LT(upwards.box.right, textOf(drawing, "30").box.left);
    expectTidy(drawing, kSheet);
}

TEST(ArrangeLineChart, AGapMakesTwoLinesOfOne) {
    LineChart chart;
    chart.x_values = {1.0, 2.0, 3.0, 4.0};
    chart.series.push_back({"", {1.0, 2.0, std::nullopt, 3.0}});
    EXPECT_EQ(linesOf(drawingOf(chart), Stroke::Series).size(), 2U);
    chart.series[0].values = {std::nullopt, std::nullopt, std::nullopt, std::nullopt};
    EXPECT_THAT(linesOf(drawingOf(chart), Stroke::Series), IsEmpty());
}

TEST(ArrangeLineChart, WhatALogarithmicAxisCannotShowInterruptsTheLine) {
    LineChart chart;
    chart.y.logarithmic = true;
    chart.x_values = {1.0, 2.0, 3.0};
    chart.series.push_back({"", {1.0, 0.0, 10.0}});
    EXPECT_EQ(linesOf(drawingOf(chart), Stroke::Series).size(), 2U);
    EXPECT_EQ(drawingOf(chart).marks.size(), 2U);

    chart.y.logarithmic = false;
    chart.x.logarithmic = true;
    chart.x_values = {1.0, -2.0, 3.0};
    EXPECT_EQ(linesOf(drawingOf(chart), Stroke::Series).size(), 2U);
    expectTidy(drawingOf(chart), kSheet);
}

TEST(ArrangeLineChart, DecadesAreDividedIntoNine) {
    LineChart chart;
    chart.x_values = {1.0, 100.0};
    chart.series.push_back({"", {1.0, 1000.0}});
    EXPECT_THAT(linesOf(drawingOf(chart), Stroke::FineGridLine), IsEmpty());
    chart.x.logarithmic = true;
    EXPECT_EQ(linesOf(drawingOf(chart), Stroke::FineGridLine).size(), 16U);
    chart.y.logarithmic = true;
    EXPECT_EQ(linesOf(drawingOf(chart), Stroke::FineGridLine).size(), 16U + 24U);
}

TEST(ArrangeLineChart, ManyPointsCarryFewMarks) {
    EXPECT_EQ(drawingOf(withPoints(24)).marks.size(), 24U);
    EXPECT_EQ(drawingOf(withPoints(25)).marks.size(), 13U) << "every second one";
    EXPECT_EQ(drawingOf(withPoints(2000)).marks.size(), 25U);
}

TEST(ArrangeLineChart, TheLegendNamesEveryLine) {
    LineChart chart = withSeries(2);
    chart.series[1].name = "two";
    const Drawing drawing = drawingOf(chart);
    EXPECT_THAT(textsOf(drawing), IsSupersetOf({"legend", "one", "two"}));
    const auto lines = linesOf(drawing, Stroke::Series);
    ASSERT_EQ(lines.size(), 4U) << "each once in the plot, once in the legend";
    EXPECT_EQ(lines[3].series, 1U);
    EXPECT_EQ(drawing.marks.back().series, 1U);
    // The second row: 64 + 2 * 18.
    EXPECT_THAT(lines[3].points, ElementsAre(Point{654, 100}, Point{688, 100}));
    EXPECT_DOUBLE_EQ(textOf(drawing, "two").box.left, 696);
    EXPECT_DOUBLE_EQ(middle(textOf(drawing, "two").box.top, textOf(drawing, "two").box.bottom), 100);
    chart.legend.clear();
    EXPECT_THAT(textsOf(drawingOf(chart)), Not(Contains("two")));
}

TEST(ArrangeLineChart, AFullLegendStaysOnTheSheet) {
    const Drawing drawing = drawingOf(withSeries(kMostSeries));
    EXPECT_EQ(linesOf(drawing, Stroke::Series).size(), 2 * kMostSeries);
    expectTidy(drawing, kSheet);
}

TEST(ArrangeLineChart, LongSubtitlesAndHeadingsAreBroken) {
    LineChart chart = withSeries(1);
    for (int i = 0; i < 40; ++i) {
        chart.subtitle += "value ";
        chart.legend += i < 15 ? " heading" : "";
    }
    const Drawing drawing = drawingOf(chart);
    // 40 times 6 characters of 7 are 1680, the room is 802.
    EXPECT_EQ(linesOf(drawing, Stroke::Axis)[0].points[0].y, 64 + 2 * 16);
    expectTidy(drawing, kSheet);
}

TEST(ArrangeLineChart, TextsWithoutRoomAreDropped) {
    LineChart chart = withSeries(1);
    chart.title = std::string(200, 'x');
    chart.x.label = chart.title;
    chart.y.label = chart.title;
    chart.series[0].name = chart.title;
    const Drawing drawing = drawingOf(chart);
    EXPECT_THAT(textsOf(drawing), Not(Contains(chart.title)));
    expectTidy(drawing, kSheet);
}

TEST(ArrangeLineChart, IsTidyOnEverySheetAndNotThereOnATinyOne) {
    LineChart chart = withSeries(9);
    chart.title = "Délka rýhy";
    chart.subtitle = "Výška rýhy = 1 m, pórovitost = 0.3";
    chart.x.label = "Součinitel filtrace [m/s]";
    chart.y.label = "Délka rýhy [m]";
    chart.x_values = {1e-12, 1e12};
    for (const bool logarithmic : {false, true}) {
        chart.x.logarithmic = logarithmic;
        for (double width = 50; width <= 1500; width += 145) {
            for (double height = 50; height <= 1200; height += 105) {
                const Sheet sheet{width, height};
                expectTidy(arrange(chart, sheet, plainSizes()), sheet);
            }
        }
    }
    EXPECT_THAT(arrange(chart, {300, 100}, plainSizes()).texts, IsEmpty());
}

}  // namespace
}  // namespace mero::picture
