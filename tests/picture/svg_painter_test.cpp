// SPDX-License-Identifier: MIT
/// SVG documents of sections, balances and line charts: well-formed, complete, nothing outside the sheet.
#include "picture/svg_painter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/arrange.h"
#include "picture/balance_chart.h"
#include "picture/facility_sections.h"
#include "picture/picture_support.h"
#include "picture/rain_curve.h"
#include "picture/samples.h"
#include "picture/svg_document.h"
#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

const Sheet kSheet{480, 360};

Section trench() {
    return trenchSection({.length_m = 20.0F,
                          .width_m = 1.2F,
                          .height_m = 1.0F,
                          .pipes = {.count = 2, .outer_diameter_mm = 200, .inner_diameter_mm = 180},
                          .groundwater_depth_m = 3});
}

Chart balance() {
    return swaleChart(
        {.reduced_area_m2 = 500, .infiltration_area_m2 = 60, .filtration_m_s = 1e-5F, .safety_factor = 2},
        kSampleRains, "10.0");
}

LineChart lines() {
    LineChart chart;
    chart.title = "A < B & \"C\" > D";
    chart.x_values = {1, 2, 3};
    chart.legend = "legend";
    chart.series = {{"one", {1.0, 2.0, 3.0}}, {"two", {3.0, 2.0, 1.0}}};
    return chart;
}

template <typename Picture>
Drawing drawn(const Picture& picture, const Sheet& sheet = kSheet) {
    return arrange(picture, sheet, svgTextSizes());
}

/// The numbers of an attribute, between any other characters.
std::vector<double> numbersOf(const std::string& text) {
    std::vector<double> found;
    std::string number;
    for (const char c : text + " ") {
        if (c == ' ' || c == ',') {
            if (!number.empty()) {
                found.push_back(numbers::leadingNumber(number));
            }
            number.clear();
        } else {
            number += c;
        }
    }
    return found;
}

/// Every coordinate of every element outside the definitions lies on the sheet.
void expectOnSheet(const SvgDocument& document, const Sheet& sheet) {
    for (const SvgElement& element : document.elements()) {
        if (element.in_definitions) {
            continue;
        }
        const auto number = [&](const char* name) {
            const auto found = element.attributes.find(name);
            return found == element.attributes.end() ? 0.0 : numbers::leadingNumber(found->second);
        };
        std::vector<Point> points{{number("x1"), number("y1")},
                                  {number("x2"), number("y2")},
                                  {number("x"), number("y")},
                                  {number("x") + number("width"), number("y") + number("height")}};
        if (element.name == "ellipse") {
            points.push_back({number("cx") - number("rx"), number("cy") - number("ry")});
            points.push_back({number("cx") + number("rx"), number("cy") + number("ry")});
        }
        if (element.attributes.contains("points")) {
            const std::vector<double> list = numbersOf(element.attributes.at("points"));
            for (std::size_t i = 0; i + 1 < list.size(); i += 2) {
                points.push_back({list[i], list[i + 1]});
            }
        }
        for (const Point& point : points) {
            constexpr double kRounding = 0.011;
            EXPECT_GE(std::min(point.x, point.y), -kRounding) << element.name << point;
            EXPECT_LE(point.x, sheet.width + kRounding) << element.name << point;
            EXPECT_LE(point.y, sheet.height + kRounding) << element.name << point;
        }
    }
}

TEST(SvgPainter, PicturesAreCompleteAndOnTheSheet) {
    for (const Sheet& sheet : {kSheet, Sheet{300, 240}, Sheet{1600, 1200}}) {
        for (const Drawing& drawing :
             {drawn(sampleShaft(), sheet), drawn(trench(), sheet), drawn(balance(), sheet),
              drawn(rainCurve(kSampleRains, kSampleRains[2]), sheet), drawn(lines(), sheet)}) {
            const SvgDocument document(svgDocument(drawing, sheet));
            EXPECT_EQ(document.texts(), textsOf(drawing));
            EXPECT_EQ(document.named("ellipse").size(), drawing.ellipses.size());
            EXPECT_EQ(document.named("line").size() + document.named("polyline").size(),
                      drawing.lines.size());
            expectOnSheet(document, sheet);
        }
    }
}

TEST(SvgPainter, ASectionShowsItsMaterialsAndDimensions) {
    const SvgDocument document(svgDocument(drawn(sampleShaft()), kSheet));
    std::vector<std::string> fills;
    for (const SvgElement& area : document.named("polygon")) {
        fills.push_back(area.attributes.at("fill"));
    }
    EXPECT_THAT(fills, IsSupersetOf({"url(#mero-soil)", "url(#mero-filter)", "url(#mero-sand)", "#999999"}));
    EXPECT_EQ(document.named("pattern").size(), 3U) << "each once";
    ASSERT_EQ(document.named("desc").size(), 1U);
    EXPECT_EQ(document.named("desc")[0].text, sampleShaft().summary);
    EXPECT_THAT(document.texts(), Contains(HasSubstr("1.91 m")));
    bool dashed = false;
    for (const SvgElement& line : document.named("line")) {
        dashed |= line.attributes.contains("stroke-dasharray");
    }
    EXPECT_TRUE(dashed) << "the groundwater";
    EXPECT_EQ(SvgDocument(svgDocument(drawn(trench()), kSheet)).named("ellipse").size(), 4U) << "two pipes";
}

TEST(SvgPainter, ABalanceShowsItsBars) {
    const Chart chart = balance();
    ASSERT_TRUE(chart.marked);
    const SvgDocument document(svgDocument(drawn(chart), kSheet));
    EXPECT_THAT(document.texts(), IsSupersetOf({chart.title, chart.marked_text, chart.axis_text}));
    std::size_t critical = 0;
    for (const SvgElement& bar : document.named("polygon")) {
        critical += bar.attributes.at("fill") == "#1f4e9c" ? 1U : 0U;
    }
    EXPECT_EQ(critical, 1U);
    EXPECT_THAT(document.named("defs"), IsEmpty()) << "bars have no pattern";
}

TEST(SvgPainter, TextsAreEscaped) {
    Drawing drawing;
    drawing.texts.push_back({.box = {0, 0, 100, 16}, .text = "A < B & \"C\" > D\x01"});
    drawing.summary = "<&>";
    const std::string text = svgDocument(drawing, kSheet);
    EXPECT_THAT(text, HasSubstr(">A &lt; B &amp; &quot;C&quot; &gt; D</text>"));
    EXPECT_THAT(text, HasSubstr("<desc>&lt;&amp;&gt;</desc>"));
    EXPECT_THAT(SvgDocument(text).texts(), ElementsAre("A < B & \"C\" > D"));
}

TEST(SvgPainter, SeriesDifferByDashesMarksAndColours) {
    Drawing drawing;
    for (std::size_t n = 0; n < 5; ++n) {
        drawing.lines.push_back({Stroke::Series, {{0, 0}, {10, 10}}, n});
        drawing.marks.push_back({n, {20, 20}, 3.5});
    }
    const SvgDocument document(svgDocument(drawing, kSheet));
    const auto series = document.named("polyline");
    ASSERT_EQ(series.size(), 5U);
    EXPECT_FALSE(series[0].attributes.contains("stroke-dasharray"));
    // 16 high lines of text: 1.6 wide lines.
    EXPECT_EQ(series[1].attributes.at("stroke-width"), "1.60");
    EXPECT_EQ(series[1].attributes.at("stroke-dasharray"), "8.00 4.00");
    EXPECT_EQ(series[2].attributes.at("stroke-dasharray"), "2.00 3.00");
    EXPECT_EQ(series[3].attributes.at("stroke-dasharray"), "10.00 3.00 2.00 3.00");
    EXPECT_EQ(series[1].attributes.at("stroke"), "#1f4e9c");
    // The fifth line has the dashes of the first, but the mark of the second.
    EXPECT_FALSE(series[4].attributes.contains("stroke-dasharray"));
    const auto circles = document.named("circle");
    ASSERT_EQ(circles.size(), 3U);
    EXPECT_EQ(circles[0].attributes.at("fill"), "#000000");
    EXPECT_EQ(circles[1].attributes.at("fill"), "#ffffff");
    EXPECT_EQ(circles[2].attributes.at("fill"), "#ffffff");
    EXPECT_EQ(circles[2].attributes.at("stroke"), "#7a3e9d");
    EXPECT_EQ(document.named("polygon").size(), 2U);
}

TEST(SvgPainter, TextsStandWhereTheirAlignmentSays) {
    Drawing drawing;
    const Box box{100, 50, 200, 66};
    drawing.texts.push_back({.box = box, .text = "a", .align = Align::Left});
    drawing.texts.push_back({.box = box, .text = "b", .emphasis = Emphasis::Strong, .align = Align::Right});
    drawing.texts.push_back({.box = box, .text = "c", .emphasis = Emphasis::Quiet, .size = 2});
    drawing.texts.push_back({.box = {10, 100, 26, 200}, .text = "d", .upright = true});
    const auto texts = SvgDocument(svgDocument(drawing, kSheet)).named("text");
    ASSERT_EQ(texts.size(), 4U);
    // The baseline lies 0.346 of 13 below the middle.
    EXPECT_EQ(texts[0].attributes.at("x"), "100.00");
    EXPECT_EQ(texts[0].attributes.at("y"), "62.50");
    EXPECT_EQ(texts[0].attributes.at("text-anchor"), "start");
    EXPECT_EQ(texts[1].attributes.at("x"), "200.00");
    EXPECT_EQ(texts[1].attributes.at("text-anchor"), "end");
    EXPECT_EQ(texts[1].attributes.at("font-weight"), "bold");
    EXPECT_EQ(texts[2].attributes.at("x"), "150.00");
    EXPECT_EQ(texts[2].attributes.at("text-anchor"), "middle");
    EXPECT_EQ(texts[2].attributes.at("font-size"), "26.00");
    EXPECT_EQ(texts[2].attributes.at("fill"), "#404040");
    EXPECT_EQ(texts[3].attributes.at("transform"), "rotate(-90 18.00 150.00)");
}

TEST(SvgPainter, LargeCoordinatesAreNotGrouped) {
    Drawing drawing;
    drawing.lines.push_back({Stroke::Outline, {{0, 0}, {12345.678, 1}}});
    EXPECT_THAT(svgDocument(drawing, {20000, 100}), HasSubstr("x2=\"12345.68\""));
    EXPECT_THAT(svgDocument(drawing, {20000, 100}), Not(HasSubstr("12 345")));
}

}  // namespace
}  // namespace mero::picture
