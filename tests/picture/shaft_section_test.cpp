// SPDX-License-Identifier: MIT
// Sections of shafts: the layers one below the other, the ring around them, the levels of the groundwater.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/facility_sections.h"
#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// 1 m of inlet, 1.5 m of water, 0.5 m of filter, 0.25 m of sand: 3.25 m; groundwater from 1 + 1.5 + 1.5 m.
constexpr ShaftValues kShaft{.inner_width_m = 1.5F,
                             .wall_m = 0.125F,
                             .inlet_depth_m = 1.0F,
                             .filter_layer_m = 0.5F,
                             .sand_layer_m = 0.25F,
                             .water_level_m = 1.5F,
                             .depth_m = 3.25F,
                             .required_embedding_m = 4.0F};

std::vector<Point> box(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

TEST(ShaftSection, TheLayersStandOneBelowTheOther) {
    const Section section = shaftSection(kShaft);
    ASSERT_TRUE(section.drawable());
    EXPECT_EQ(cornersOf(section, Material::Air), box(0, 0, 1.5, 1));
    EXPECT_EQ(cornersOf(section, Material::Water), box(0, 1, 1.5, 2.5));
    EXPECT_EQ(cornersOf(section, Material::Filter), box(0, 2.5, 1.5, 3));
    EXPECT_EQ(cornersOf(section, Material::Sand), box(0, 3, 1.5, 3.25));
    EXPECT_EQ(cornersOf(section, Material::Concrete), box(-0.125, 0, 0, 3.25));
    EXPECT_EQ(section.areas.back().corners, box(1.5, 0, 1.625, 3.25)) << "the other side of the ring";
    EXPECT_THAT(dimensionsOf(section), ElementsAre("přítok 1 m", "vzdutí 1.50 m", "filtr 0.5 m",
                                                   "písek 0.25 m", "hloubka 3.25 m", "⌀ 1.5 m"));
    EXPECT_TRUE(section.dimensions[4].outer);
    EXPECT_THAT(section.notes, ElementsAre("šachta ⌀ 1.5 m, stěna 0.125 m"));
}

TEST(ShaftSection, TypeAHasNoSand) {
    ShaftValues values = kShaft;
    values.sand_layer_m = 0;
    values.depth_m = 3.0F;
    const Section section = shaftSection(values);
    EXPECT_TRUE(cornersOf(section, Material::Sand).empty());
    EXPECT_EQ(cornersOf(section, Material::Concrete), box(-0.125, 0, 0, 3));
    EXPECT_THAT(dimensionsOf(section),
                ElementsAre("přítok 1 m", "vzdutí 1.50 m", "filtr 0.5 m", "hloubka 3.00 m", "⌀ 1.5 m"));
}

TEST(ShaftSection, ShowsHowHighTheGroundwaterMayBeAndHowHighItIs) {
    ShaftValues values = kShaft;
    values.groundwater_depth_m = 5;
    const Section section = shaftSection(values);
    ASSERT_EQ(section.levels.size(), 2U);
    EXPECT_EQ(section.levels[0].stroke, Stroke::GroundwaterLimit);
    EXPECT_EQ(section.levels[0].depth_m, 4);
    EXPECT_EQ(section.levels[0].text, "HPV ≥ 4.00 m");
    EXPECT_EQ(section.levels[1].depth_m, 5);
    EXPECT_EQ(section.levels[1].text, "HPV 5 m");
    EXPECT_EQ(section.extent.bottom, 5);
    EXPECT_THAT(section.summary, HasSubstr("nejmenší hloubka podzemní vody 4.00 m"));
}

TEST(ShaftSection, ARectangularShaftSaysBothSides) {
    ShaftValues values = kShaft;
    values.rectangular = true;
    values.inner_length_m = 2;
    values.count = 3;
    const Section section = shaftSection(values);
    EXPECT_THAT(section.notes, ElementsAre("3× šachta 1.5 × 2 m, stěna 0.125 m"));
    EXPECT_EQ(dimensionsOf(section).back(), "šířka 1.5 m");
    values.inner_length_m = 0;
    EXPECT_FALSE(shaftSection(values).drawable());
}

TEST(ShaftSection, WithoutAnyWaterThereIsStillAShaft) {
    ShaftValues values = kShaft;
    values.water_level_m = 0.0F;
    values.depth_m = 1.75F;
    values.required_embedding_m = 2.5F;
    const Section section = shaftSection(values);
    ASSERT_TRUE(section.drawable());
    EXPECT_TRUE(cornersOf(section, Material::Water).empty());
    EXPECT_EQ(cornersOf(section, Material::Filter), box(0, 1, 1.5, 1.5));
}

TEST(ShaftSection, HasAHintBeforeTheResultsAndForOddValues) {
    EXPECT_EQ(shaftSection({}).hint, "Řez se nakreslí po výpočtu.");
    ShaftValues values = kShaft;
    values.wall_m = 0;
    EXPECT_EQ(shaftSection(values).hint, "Z těchto hodnot nelze řez nakreslit.");
}

}  // namespace
}  // namespace mero::picture
