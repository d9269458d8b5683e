// SPDX-License-Identifier: MIT
// Sections of surface infiltration and of swales: positions in metres, depths downwards.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/facility_sections.h"
#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(SurfaceSection, IsAsWideAsASquareOfTheArea) {
    const Section section = surfaceSection({.area_m2 = 400.0F});
    ASSERT_TRUE(section.drawable());
    // 20 m x 20 m; the soil below is a quarter of that.
    EXPECT_EQ(section.extent, (Box{0, 0, 20, 5}));
    EXPECT_THAT(dimensionsOf(section), ElementsAre("strana 20.0 m"));
    EXPECT_THAT(section.notes, ElementsAre("plocha 400.0 m², kreslená jako čtverec o straně 20.0 m"));
    EXPECT_THAT(section.levels, IsEmpty());
    EXPECT_EQ(section.summary, "Řez plošným vsakováním: plocha 400.0 m².");
}

TEST(SurfaceSection, GroundwaterNearByIsToScaleAndFarBelowItIsBroken) {
    const Section near_by = surfaceSection({.area_m2 = 400.0F, .groundwater_depth_m = 9.5F});
    ASSERT_EQ(near_by.levels.size(), 1U);
    EXPECT_EQ(near_by.levels[0].text, "HPV 9.5 m");
    EXPECT_FALSE(near_by.levels[0].beyond_break);
    EXPECT_EQ(near_by.extent.bottom, 9.5);

    const Section far = surfaceSection({.area_m2 = 400.0F, .groundwater_depth_m = 10.5F});
    ASSERT_EQ(far.levels.size(), 1U);
    EXPECT_TRUE(far.levels[0].beyond_break);
    EXPECT_EQ(far.extent.bottom, 5);
}

TEST(SurfaceSection, ANegativeAreaHasNoDrawing) {
    const Section section = surfaceSection({.area_m2 = -2000.0F});
    EXPECT_FALSE(section.drawable());
    EXPECT_EQ(section.hint, "Z těchto hodnot nelze řez nakreslit.");
    EXPECT_EQ(section.summary, section.hint);
}

TEST(SwaleSection, HasTheBottomOfASquareAndBanksOneToTwo) {
    const Section section = swaleSection({.area_m2 = 100.0F, .ponding_m = 0.25F});
    ASSERT_TRUE(section.drawable());
    EXPECT_THAT(cornersOf(section, Material::Water),
                ElementsAre(Point{-0.5, 0}, Point{10.5, 0}, Point{10, 0.25}, Point{0, 0.25}));
    EXPECT_EQ(section.extent, (Box{-0.5, 0, 10.5, 0.25}));
    EXPECT_THAT(dimensionsOf(section), ElementsAre("vzdutí 0.25 m", "strana 10.0 m"));
    EXPECT_EQ(section.dimensions[0].from, 0);
    EXPECT_EQ(section.dimensions[0].to, 0.25);
    EXPECT_THAT(section.summary, HasSubstr("vsakovací plocha 100.0 m², výška vzdutí 0.25 m"));
}

TEST(SwaleSection, TellsTheGroundwaterWhicheverSignItHas) {
    const Section section =
        swaleSection({.area_m2 = 100.0F, .ponding_m = 0.25F, .groundwater_depth_m = -0.5F});
    ASSERT_EQ(section.levels.size(), 1U);
    EXPECT_EQ(section.levels[0].depth_m, 0.5);
    EXPECT_FALSE(section.levels[0].beyond_break);
    EXPECT_THAT(section.summary, HasSubstr("hladina podzemní vody 0.5 m pod povrchem"));
}

TEST(SwaleSection, HasAHintBeforeTheResultsAndWithoutPonding) {
    EXPECT_EQ(swaleSection({}).hint, "Řez se nakreslí po výpočtu.");
    EXPECT_EQ(swaleSection({.area_m2 = 100.0F}).hint, "Řez se nakreslí po výpočtu.");
    EXPECT_EQ(swaleSection({.area_m2 = 100.0F, .ponding_m = 0.0F}).hint,
              "Z těchto hodnot nelze řez nakreslit.");
}

}  // namespace
}  // namespace mero::picture
