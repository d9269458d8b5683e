// SPDX-License-Identifier: MIT
/// The drawing of a chart: where lines and marks lie, what tells lines apart, what the texts become.
#include "sweep/svg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>

namespace mero::sweep {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

std::size_t countOf(std::string_view what, std::string_view document) {
    std::size_t count = 0;
    for (std::size_t at = document.find(what); at != std::string_view::npos;
         at = document.find(what, at + 1)) {
        ++count;
    }
    return count;
}

/// A line from the lower left corner of the plot to the upper right one.
Chart diagonal() {
    Chart chart;
    chart.x_values = {0.0, 60.0};
    chart.series.push_back({"one", {0.0, 30.0}});
    return chart;
}

Chart withSeries(std::size_t count) {
    Chart chart = diagonal();
    chart.legend = "legend";
    chart.series.assign(count, chart.series[0]);
    return chart;
}

Chart withPoints(std::size_t count) {
    Chart chart;
    chart.series.emplace_back();
    for (std::size_t i = 0; i < count; ++i) {
        chart.x_values.push_back(static_cast<double>(i));
        chart.series[0].values.emplace_back(1.0);
    }
    return chart;
}

TEST(Svg, ALineRunsBetweenTheCornersOfThePlot) {
    const std::string document = svg(diagonal());
    EXPECT_THAT(document, HasSubstr("<polyline points=\"90.00,484.00 630.00,64.00 \""));
    EXPECT_THAT(document, HasSubstr("<circle cx=\"90.00\" cy=\"484.00\""));
    EXPECT_THAT(document, HasSubstr("<circle cx=\"630.00\" cy=\"64.00\""));
    // 10 of 60 is a sixth of 540: the second tick of the axis.
    EXPECT_THAT(document, HasSubstr("<text x=\"180.00\" y=\"506.00\" text-anchor=\"middle\">10</text>"));
    EXPECT_THAT(document, HasSubstr(">30</text>"));
}

TEST(Svg, TextsStandWhereTheyBelongAndAreEscaped) {
    Chart chart = diagonal();
    chart.title = "A < B & \"C\" > D";
    chart.subtitle = "below";
    chart.x.label = "across";
    chart.y.label = "upwards";
    const std::string document = svg(chart);
    EXPECT_THAT(document, HasSubstr(">A &lt; B &amp; &quot;C&quot; &gt; D</text>"));
    EXPECT_THAT(document, HasSubstr(">below</text>"));
    EXPECT_THAT(document, HasSubstr("<text x=\"360.00\" y=\"532.00\" text-anchor=\"middle\">across</text>"));
    EXPECT_THAT(document, HasSubstr("transform=\"rotate(-90 22 274.00)\">upwards</text>"));
}

TEST(Svg, AGapMakesTwoLinesOfOne) {
    Chart chart;
    chart.x_values = {1.0, 2.0, 3.0, 4.0};
    chart.series.push_back({"", {1.0, 2.0, std::nullopt, 3.0}});
    EXPECT_EQ(countOf("<polyline", svg(chart)), 2U);
    chart.series[0].values = {std::nullopt, std::nullopt, std::nullopt, std::nullopt};
    EXPECT_EQ(countOf("<polyline", svg(chart)), 0U);
}

TEST(Svg, WhatALogarithmicAxisCannotShowInterruptsTheLine) {
    Chart chart;
    chart.y.logarithmic = true;
    chart.x_values = {1.0, 2.0, 3.0};
    chart.series.push_back({"", {1.0, 0.0, 10.0}});
    EXPECT_EQ(countOf("<polyline", svg(chart)), 2U);
    EXPECT_EQ(countOf("<circle", svg(chart)), 2U);

    chart.y.logarithmic = false;
    chart.x.logarithmic = true;
    chart.x_values = {1.0, -2.0, 3.0};
    EXPECT_EQ(countOf("<polyline", svg(chart)), 2U);
    EXPECT_THAT(svg(chart), Not(HasSubstr("nan")));
}

TEST(Svg, DecadesAreDividedIntoNine) {
    constexpr const char* kFineLine = "stroke=\"#e6e6e6\"";
    Chart chart;
    chart.x_values = {1.0, 100.0};
    chart.series.push_back({"", {1.0, 1000.0}});
    EXPECT_EQ(countOf(kFineLine, svg(chart)), 0U);
    chart.x.logarithmic = true;
    EXPECT_EQ(countOf(kFineLine, svg(chart)), 16U);
    chart.y.logarithmic = true;
    EXPECT_EQ(countOf(kFineLine, svg(chart)), 16U + 24U);
}

TEST(Svg, ManyPointsCarryFewMarks) {
    EXPECT_EQ(countOf("<circle", svg(withPoints(24))), 24U);
    EXPECT_EQ(countOf("<circle", svg(withPoints(25))), 13U);  // every second one
    EXPECT_EQ(countOf("<circle", svg(withPoints(2000))), 25U);
}

TEST(Svg, LinesDifferByDashesAndThoseOfTheSameDashesByMarks) {
    const std::string four = svg(withSeries(4));
    for (const char* dashes : {"\"\"", "\"8 4\"", "\"2 3\"", "\"10 3 2 3\""}) {
        // Once in the plot, once in the legend.
        EXPECT_EQ(countOf("stroke-dasharray=" + std::string(dashes), four), 2U) << dashes;
    }
    // Circles filled and empty, squares and triangles, three of each.
    EXPECT_EQ(countOf("fill=\"#000000\" stroke=\"#000000\"", four), 3U);
    EXPECT_EQ(countOf("fill=\"#ffffff\" stroke=\"#1f4e9c\"", four), 3U);
    EXPECT_EQ(countOf("<circle", four), 6U);
    EXPECT_EQ(countOf("<polygon", four), 6U);
    // The fifth line has the dashes of the first, but the mark of the second.
    const std::string five = svg(withSeries(5));
    EXPECT_EQ(countOf("stroke-dasharray=\"\"", five), 4U);
    EXPECT_EQ(countOf("fill=\"#ffffff\" stroke=\"#7a3e9d\"", five), 3U);
}

TEST(Svg, TheLegendNamesEveryLine) {
    Chart chart = withSeries(2);
    chart.series[1].name = "two";
    const std::string document = svg(chart);
    EXPECT_THAT(document, HasSubstr(">legend</text>"));
    EXPECT_THAT(document, HasSubstr(">one</text>"));
    // The second row: 64 + 2 * 18 + 4.
    EXPECT_THAT(
        document,
        HasSubstr("<text x=\"696.00\" y=\"104.00\" text-anchor=\"start\" font-size=\"12\">two</text>"));
    chart.legend.clear();
    EXPECT_THAT(svg(chart), Not(HasSubstr(">two</text>")));
}

}  // namespace
}  // namespace mero::sweep
