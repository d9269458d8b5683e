// SPDX-License-Identifier: MIT
// Sections on sheets: the scale, what is stretched and said to be, and labels that keep out of each other's
// way.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/arrange.h"
#include "picture/facility_sections.h"
#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

Section block(double width_m, double height_m) {
    Section section;
    section.extent = {0, 0, width_m, height_m};
    section.legible_width_m = width_m;
    section.legible_height_m = height_m;
    section.areas.push_back({Material::Water, {{0, 0}, {width_m, 0}, {width_m, height_m}, {0, height_m}}});
    section.summary = "Kvádr.";
    return section;
}

/// Width and height of the water on the sheet.
Point waterSize(const Drawing& drawing) {
    for (const PlacedArea& area : drawing.areas) {
        if (area.material == Material::Water) {
            return {area.corners[2].x - area.corners[0].x, area.corners[2].y - area.corners[0].y};
        }
    }
    return {};
}

TEST(ArrangeSection, BothDirectionsHaveTheSameScale) {
    const Drawing drawing = arrange(block(2, 1), {400, 300}, plainSizes());
    // Margins of 5.6 and soil of 19.6 on both sides leave 349.6 for 2 m: 174.8 for a metre. The height has
    // 300 - 2 * 5.6 - 9.8 of air - 11.2 of soil = 267.8, so half of the 93 left over lies above.
    ASSERT_EQ(drawing.areas.size(), 2U);
    const std::vector<Point>& corners = drawing.areas[1].corners;
    EXPECT_NEAR(corners[0].x, 25.2, 1e-9);
    EXPECT_NEAR(corners[0].y, 61.9, 1e-9);
    EXPECT_NEAR(corners[2].x, 374.8, 1e-9);
    EXPECT_NEAR(corners[2].y, 236.7, 1e-9);
    EXPECT_EQ(drawing.summary, "Kvádr.");
    EXPECT_THAT(drawing.texts, IsEmpty()) << "to scale there is nothing to say";
}

TEST(ArrangeSection, WhatWouldBeTooFlatIsStretchedAndSaysSo) {
    // 349.6 for 100 m would leave 0.35 for 10 cm; a line and a half of text, 21, is 60 times as much.
    const Drawing drawing = arrange(block(100, 0.1), {400, 300}, plainSizes());
    EXPECT_NEAR(waterSize(drawing).x, 349.6, 1e-6);
    EXPECT_NEAR(waterSize(drawing).y, 21, 1e-6);
    EXPECT_THAT(textsOf(drawing), Contains("není v měřítku, výšky zvětšeny 60×"));
}

TEST(ArrangeSection, WhatWouldBeTooNarrowIsStretchedAndSaysSo) {
    const Drawing drawing = arrange(block(0.1, 10), {400, 300}, plainSizes());
    EXPECT_NEAR(waterSize(drawing).x, 35, 1e-6) << "two and a half lines";
    EXPECT_THAT(textsOf(drawing), Contains(HasSubstr("není v měřítku, šířky zvětšeny")));
}

TEST(ArrangeSection, FlatButVisibleStaysToScale) {
    // 349.6 for 25 m are 14 for a metre: less than wanted, but to be seen.
    const Drawing drawing = arrange(block(25, 1), {400, 300}, plainSizes());
    EXPECT_NEAR(waterSize(drawing).y, 349.6 / 25, 1e-6);
    EXPECT_THAT(drawing.texts, IsEmpty());
}

TEST(ArrangeSection, ADeepGroundwaterIsBrokenAndSaysSo) {
    const Drawing drawing =
        arrange(trenchSection({.length_m = 5.0F, .width_m = 1, .height_m = 1, .groundwater_depth_m = 30}),
                {400, 300}, plainSizes());
    EXPECT_THAT(textsOf(drawing), Contains("hloubka podzemní vody není v měřítku"));
    EXPECT_THAT(textsOf(drawing), Contains("HPV 30 m"));
    EXPECT_NEAR(waterSize(drawing).x, 0, 1e-9);
}

TEST(ArrangeSection, DimensionsNameWhatTheyMeasureWhereThereIsRoom) {
    const Section section = trenchSection({.length_m = 5.0F, .width_m = 1, .height_m = 1});
    const Drawing wide = arrange(section, {500, 300}, plainSizes());
    EXPECT_THAT(textsOf(wide), Contains("výška rýhy 1 m"));
    const Drawing narrow = arrange(section, {250, 300}, plainSizes());
    EXPECT_THAT(textsOf(narrow), Contains("1 m"));
    EXPECT_THAT(textsOf(narrow), Not(Contains("výška rýhy 1 m")));
}

TEST(ArrangeSection, ADimensionLineSpansWhatItMeasures) {
    Section section = block(2, 1);
    section.dimensions.push_back({Side::Below, 0.5, 1.5, "b", "1 m"});
    const Drawing drawing = arrange(section, {400, 300}, plainSizes());
    const double metre = waterSize(drawing).x / 2;
    const auto line = std::find_if(drawing.lines.begin(), drawing.lines.end(), [](const PlacedLine& each) {
        return each.stroke == Stroke::Dimension && each.points[0].y == each.points[1].y;
    });
    ASSERT_NE(line, drawing.lines.end());
    EXPECT_NEAR(line->points[1].x - line->points[0].x, metre, 1e-9);
    const PlacedText& text = drawing.texts.at(0);
    EXPECT_EQ(text.text, "b 1 m");
    EXPECT_NEAR((text.box.left + text.box.right) / 2, (line->points[0].x + line->points[1].x) / 2, 1e-9);
    EXPECT_GT(text.box.top, line->points[0].y);
}

TEST(ArrangeSection, AHintStandsInTheMiddleOfTheSheet) {
    const Drawing drawing = arrange(trenchSection({}), {400, 300}, plainSizes());
    EXPECT_THAT(textsOf(drawing), testing::ElementsAre("Řez se nakreslí po výpočtu."));
    EXPECT_EQ(drawing.summary, "Řez se nakreslí po výpočtu.");
    EXPECT_THAT(drawing.areas, IsEmpty());
}

TEST(ArrangeSection, OnATinySheetThereIsNothing) {
    for (const Sheet sheet : {Sheet{0, 0}, {1, 1}, {400, 10}, {10, 400}}) {
        const Drawing drawing = arrange(block(2, 1), sheet, plainSizes());
        EXPECT_THAT(drawing.areas, IsEmpty());
        expectTidy(drawing, sheet);
    }
}

/// Six facilities as people design them.
std::vector<Section> facilities() {
    return {surfaceSection({.area_m2 = 923.3F, .groundwater_depth_m = 5}),
            swaleSection({.area_m2 = 90.0F, .ponding_m = 0.26F, .groundwater_depth_m = 3}),
            swaleTrenchSection({.trench = {.length_m = 85.9F,
                                           .width_m = 0.5F,
                                           .height_m = 0.5F,
                                           .pipes = {1, 200, 180},
                                           .groundwater_depth_m = 2},
                                .swale_depth_m = 0.16F}),
            trenchSection({.length_m = 25.9F, .width_m = 1, .height_m = 1.5F, .pipes = {2, 150, 140}}),
            shaftSection({.count = 2,
                          .inner_width_m = 1.5F,
                          .wall_m = 0.15F,
                          .inlet_depth_m = 1.2F,
                          .filter_layer_m = 0.5F,
                          .sand_layer_m = 0.3F,
                          .water_level_m = 3.91F,
                          .depth_m = 5.91F,
                          .required_embedding_m = 6.61F,
                          .groundwater_depth_m = 7}),
            tankSection({.bottom_length_m = 20,
                         .bottom_width_m = 5,
                         .depth_m = 1,
                         .slope = 2,
                         .required_storage_m3 = 27.0F,
                         .volume_m3 = 154.32F,
                         .groundwater_depth_m = 4})};
}

TEST(ArrangeSection, EveryFacilityIsTidyOnEverySheet) {
    for (const Section& section : facilities()) {
        ASSERT_TRUE(section.drawable());
        for (double width = 60; width <= 900; width += 61) {
            for (double height = 40; height <= 700; height += 47) {
                const Sheet sheet{width, height};
                SCOPED_TRACE(section.summary + " on " + std::to_string(static_cast<int>(width)) + " x " +
                             std::to_string(static_cast<int>(height)));
                expectTidy(arrange(section, sheet, plainSizes()), sheet);
            }
        }
    }
}

TEST(ArrangeSection, EveryFacilityIsDrawnWithAllItsDimensionsWhereThereIsRoom) {
    for (const Section& section : facilities()) {
        const std::vector<std::string> texts = textsOf(arrange(section, {520, 320}, plainSizes()));
        for (const std::string& dimension : dimensionsOf(section)) {
            EXPECT_THAT(texts, Contains(dimension)) << section.summary;
        }
    }
}

}  // namespace
}  // namespace mero::picture
