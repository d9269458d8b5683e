// SPDX-License-Identifier: MIT
// Charts on sheets: round numbers on the axis, bars to their height, labels only where they have room.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/arrange.h"
#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

Chart bars(const std::vector<double>& values) {
    Chart chart;
    chart.title = "Objem [m³]";
    chart.axis_text = "doba [min]";
    chart.summary = "Objem.";
    for (const double value : values) {
        chart.points.push_back({"15", 0.0, value});
    }
    return chart;
}

std::vector<Box> barsOf(const Drawing& drawing, Material material) {
    std::vector<Box> boxes;
    for (const PlacedArea& area : drawing.areas) {
        if (area.material == material) {
            boxes.push_back({area.corners[0].x, area.corners[0].y, area.corners[2].x, area.corners[2].y});
        }
    }
    return boxes;
}

TEST(ArrangeChart, BarsAreAsHighAsTheirValues) {
    const Drawing drawing = arrange(bars({10, 20, 5}), {300, 200}, plainSizes());
    const std::vector<Box> boxes = barsOf(drawing, Material::Bar);
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_NEAR(boxes[1].height() / boxes[0].height(), 2, 1e-9);
    EXPECT_NEAR(boxes[0].height() / boxes[2].height(), 2, 1e-9);
    EXPECT_EQ(boxes[0].bottom, boxes[1].bottom);
    EXPECT_LT(boxes[0].right, boxes[1].left);
    EXPECT_EQ(drawing.summary, "Objem.");
}

TEST(ArrangeChart, TheAxisGoesInRoundStepsToTheHighestBar) {
    // 200 - margins 11.2 - title 14 - room for the mark 19.6 - labels 33.6 = 121.6, at most 5 steps for 43.
    const std::vector<std::string> texts = textsOf(arrange(bars({43, 20, 5}), {300, 200}, plainSizes()));
    for (const char* tick : {"0", "10", "20", "30", "40", "50"}) {
        EXPECT_THAT(texts, Contains(tick));
    }
    EXPECT_THAT(texts, Not(Contains("60")));
}

TEST(ArrangeChart, TheMarkedBarHasItsOwnFillAndItsValueAboveIt) {
    Chart chart = bars({10, 20, 5});
    chart.marked = 1;
    chart.marked_text = "20.0 m³";
    const Drawing drawing = arrange(chart, {300, 200}, plainSizes());
    ASSERT_EQ(barsOf(drawing, Material::CriticalBar).size(), 1U);
    const Box bar = barsOf(drawing, Material::CriticalBar)[0];
    const auto text = std::find_if(drawing.texts.begin(), drawing.texts.end(),
                                   [](const PlacedText& each) { return each.text == "20.0 m³"; });
    ASSERT_NE(text, drawing.texts.end());
    EXPECT_LE(text->box.bottom, bar.top);
    EXPECT_EQ(text->emphasis, Emphasis::Strong);
    EXPECT_NEAR((text->box.left + text->box.right) / 2, (bar.left + bar.right) / 2, 1e-9);
}

TEST(ArrangeChart, TheMarksTextNeverLiesOnAHigherBar) {
    Chart chart = bars({600, 90, 60, 50});
    chart.marked = 1;
    chart.marked_text = "90.0 m²";
    const Drawing drawing = arrange(chart, {300, 200}, plainSizes());
    const auto text = std::find_if(drawing.texts.begin(), drawing.texts.end(),
                                   [](const PlacedText& each) { return each.text == "90.0 m²"; });
    ASSERT_NE(text, drawing.texts.end());
    for (const Box& bar : barsOf(drawing, Material::Bar)) {
        EXPECT_FALSE(overlap(bar, text->box));
    }
}

TEST(ArrangeChart, AMissingValueHasNoBarButKeepsItsPlace) {
    Chart chart = bars({10, 20, 5});
    chart.points[1].value.reset();
    const std::vector<Box> boxes = barsOf(arrange(chart, {300, 200}, plainSizes()), Material::Bar);
    ASSERT_EQ(boxes.size(), 2U);
    const std::vector<Box> all = barsOf(arrange(bars({10, 20, 5}), {300, 200}, plainSizes()), Material::Bar);
    EXPECT_NEAR(boxes[1].left, all[2].left, 3.5 + 1e-9) << "the axis may be a character narrower";
}

TEST(ArrangeChart, ACurveStandsOverALogarithmicAxis) {
    Chart chart = bars({40, 20, 10});
    chart.kind = Chart::Kind::Curve;
    chart.points[0].position = 5;
    chart.points[1].position = 10;
    chart.points[2].position = 20;
    const Drawing drawing = arrange(chart, {300, 200}, plainSizes());
    const auto curve = std::find_if(drawing.lines.begin(), drawing.lines.end(),
                                    [](const PlacedLine& line) { return line.stroke == Stroke::Curve; });
    ASSERT_NE(curve, drawing.lines.end());
    ASSERT_EQ(curve->points.size(), 3U);
    EXPECT_NEAR(curve->points[1].x - curve->points[0].x, curve->points[2].x - curve->points[1].x, 1e-9)
        << "each twice as long";
    EXPECT_NEAR((curve->points[1].y - curve->points[0].y) / (curve->points[2].y - curve->points[1].y), 2,
                1e-9);
    EXPECT_EQ(drawing.ellipses.size(), 3U);
}

TEST(ArrangeChart, TheMarkedLabelComesFirstWhereNotAllHaveRoom) {
    Chart chart = bars({1, 2, 3, 4, 5, 6, 7, 8, 9});
    for (std::size_t i = 0; i < chart.points.size(); ++i) {
        chart.points[i].label = std::to_string(100000 + i);
    }
    chart.marked = 7;
    const std::vector<std::string> texts = textsOf(arrange(chart, {250, 200}, plainSizes()));
    EXPECT_THAT(texts, Contains("100007"));
    EXPECT_THAT(texts, Not(Contains("100008")));
}

TEST(ArrangeChart, WithoutPointsThereIsStillAnAxis) {
    Chart chart = bars({});
    for (const auto kind : {Chart::Kind::Bars, Chart::Kind::Curve}) {
        chart.kind = kind;
        EXPECT_THAT(textsOf(arrange(chart, {300, 200}, plainSizes())), Contains("0"));
    }
}

TEST(ArrangeChart, TheNoteStandsBelow) {
    Chart chart = bars({10});
    chart.note = "vstupy se změnily";
    EXPECT_THAT(textsOf(arrange(chart, {300, 200}, plainSizes())), Contains("vstupy se změnily"));
}

TEST(ArrangeChart, IsTidyOnEverySheetAndNotThereOnATinyOne) {
    Chart chart = bars({434, 320, 253, 210, 156, 113, 88, 61, 47});
    chart.note = "vstupy se od výpočtu změnily";
    for (std::size_t i = 0; i < chart.points.size(); ++i) {
        chart.points[i].position = 5.0 * static_cast<double>(i + 1);
    }
    for (const auto kind : {Chart::Kind::Bars, Chart::Kind::Curve}) {
        chart.kind = kind;
        for (std::size_t marked = 0; marked < chart.points.size(); ++marked) {
            chart.marked = marked;
            chart.marked_text = "434.0 m³";
            for (double width = 10; width <= 700; width += 46) {
                for (double height = 5; height <= 500; height += 45) {
                    const Sheet sheet{width, height};
                    expectTidy(arrange(chart, sheet, plainSizes()), sheet);
                }
            }
        }
    }
    EXPECT_THAT(arrange(chart, {60, 60}, plainSizes()).texts, IsEmpty());
}

}  // namespace
}  // namespace mero::picture
