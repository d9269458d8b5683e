// SPDX-License-Identifier: MIT
// Sections of trenches, alone and under a swale, with pipes that fit and pipes that do not.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/facility_sections.h"
#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr TrenchValues kTrench{.length_m = 68.0F, .width_m = 1.0F, .height_m = 0.5F};

TrenchValues with(PipeValues pipes) {
    TrenchValues values = kTrench;
    values.pipes = pipes;
    return values;
}

TEST(TrenchSection, IsTheFilledRectangle) {
    const Section section = trenchSection(kTrench);
    ASSERT_TRUE(section.drawable());
    EXPECT_THAT(cornersOf(section, Material::Gravel),
                ElementsAre(Point{0, 0}, Point{1, 0}, Point{1, 0.5}, Point{0, 0.5}));
    EXPECT_THAT(dimensionsOf(section), ElementsAre("výška rýhy 0.5 m", "šířka 1 m"));
    EXPECT_THAT(section.notes, ElementsAre("délka rýhy 68.0 m"));
    EXPECT_THAT(section.pipes, IsEmpty());
    EXPECT_EQ(section.summary, "Řez vsakovací rýhou: délka 68.0 m, šířka 1 m, výška rýhy 0.5 m.");
}

TEST(TrenchSection, PipesLieSideBySideOnTheBottom) {
    const Section section = trenchSection(with({2, 200, 180}));
    ASSERT_EQ(section.pipes.size(), 2U);
    // A quarter and three quarters of the width, half of 0.2 m above the bottom of 0.5 m.
    EXPECT_NEAR(section.pipes[0].centre.x, 0.25, 1e-9);
    EXPECT_NEAR(section.pipes[1].centre.x, 0.75, 1e-9);
    EXPECT_NEAR(section.pipes[0].centre.y, 0.4, 1e-9);
    EXPECT_NEAR(section.pipes[0].outer_diameter_m, 0.2, 1e-9);
    EXPECT_NEAR(section.pipes[0].inner_diameter_m, 0.18, 1e-9);
    EXPECT_THAT(section.notes, ElementsAre("délka rýhy 68.0 m", "potrubí 2 × ⌀ 200 / 180 mm"));
}

TEST(TrenchSection, PipesThatDoNotFitAreNotDrawn) {
    // Too many for the width, too high, wider inside than outside, more than one can count.
    for (const PipeValues pipes :
         {PipeValues{6, 200, 180}, {1, 600, 500}, {1, 200, 300}, {1e30F, 200, 180}, {1, 200, 1e-30F}}) {
        const Section section = trenchSection(with(pipes));
        EXPECT_THAT(section.pipes, IsEmpty());
        EXPECT_THAT(section.notes, ElementsAre("délka rýhy 68.0 m", "potrubí se do řezu rýhy nevejde"));
    }
}

TEST(TrenchSection, HalfAPipeIsNone) {
    EXPECT_THAT(trenchSection(with({0.5, 200, 180})).pipes, IsEmpty());
    EXPECT_THAT(trenchSection(with({1, 0, 180})).notes, ElementsAre("délka rýhy 68.0 m"));
}

TEST(TrenchSection, TheGroundwaterMayStandInTheTrench) {
    TrenchValues values = kTrench;
    values.groundwater_depth_m = 0.3F;
    const Section section = trenchSection(values);
    ASSERT_EQ(section.levels.size(), 1U);
    EXPECT_NEAR(section.levels[0].depth_m, 0.3, 1e-6);
    EXPECT_EQ(section.extent.bottom, 0.5);
}

TEST(SwaleTrenchSection, TheTrenchBeginsUnderTheSwale) {
    const Section section = swaleTrenchSection({.trench = kTrench, .swale_depth_m = 0.25F});
    ASSERT_TRUE(section.drawable());
    EXPECT_THAT(cornersOf(section, Material::Water),
                ElementsAre(Point{-0.5, 0}, Point{1.5, 0}, Point{1, 0.25}, Point{0, 0.25}));
    EXPECT_THAT(cornersOf(section, Material::Gravel),
                ElementsAre(Point{0, 0.25}, Point{1, 0.25}, Point{1, 0.75}, Point{0, 0.75}));
    EXPECT_EQ(section.extent, (Box{-0.5, 0, 1.5, 0.75}));
    EXPECT_THAT(dimensionsOf(section), ElementsAre("průleh 0.25 m", "výška rýhy 0.5 m", "šířka 1 m"));
    EXPECT_EQ(section.legible_height_m, 0.25);
    EXPECT_THAT(section.summary, HasSubstr("hloubka průlehu 0.25 m"));
}

TEST(SwaleTrenchSection, HasAHintWithoutLengthOrDepth) {
    TrenchValues without_length = kTrench;
    without_length.length_m.reset();
    EXPECT_EQ(swaleTrenchSection({without_length, 0.25F}).hint, "Řez se nakreslí po výpočtu.");
    EXPECT_EQ(swaleTrenchSection({kTrench, {}}).hint, "Řez se nakreslí po výpočtu.");
    TrenchValues narrow = kTrench;
    narrow.width_m = 0;
    EXPECT_EQ(swaleTrenchSection({narrow, 0.25F}).hint, "Z těchto hodnot nelze řez nakreslit.");
    EXPECT_EQ(swaleTrenchSection({kTrench, 0.0F}).hint, "Z těchto hodnot nelze řez nakreslit.");
}

}  // namespace
}  // namespace mero::picture
