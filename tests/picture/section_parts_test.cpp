// SPDX-License-Identifier: MIT
// What all sections share: limits of what is drawn, texts, groundwater.
#include "picture/section_parts.h"

#include <gtest/gtest.h>

#include <limits>

namespace mero::picture {
namespace {

TEST(SectionParts, WhatIsSmallerThanACentimetreOrLargerThanTenKilometresIsNotDrawn) {
    EXPECT_TRUE(canDraw(0.01));
    EXPECT_TRUE(canDraw(10000));
    EXPECT_FALSE(canDraw(0.0099));
    EXPECT_FALSE(canDraw(10001));
    EXPECT_FALSE(canDraw(0));
    EXPECT_FALSE(canDraw(-1));
    EXPECT_FALSE(canDraw(std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(canDraw(std::numeric_limits<double>::quiet_NaN()));
}

TEST(SectionParts, BanksRunOutOneToTwoButNotForEver) {
    EXPECT_EQ(bankRun(0.25, 10), 0.5);
    EXPECT_EQ(bankRun(2.5, 1), 0.5);
}

TEST(SectionParts, LengthsAreWrittenAsTheirFieldsShowThem) {
    EXPECT_EQ(metres(1.2F), "1.2 m");
    EXPECT_EQ(metres(1.0F), "1 m");
    EXPECT_EQ(metres(1234.5F, 1), "1 234.5 m");
    EXPECT_EQ(metres(0.256F, 2), "0.26 m");
}

TEST(SectionParts, GroundwaterIsBrokenOnlyBelowTheLimit) {
    Section section;
    section.extent.bottom = 2;
    addGroundwater(section, 3, 3);
    EXPECT_FALSE(section.levels.at(0).beyond_break);
    EXPECT_EQ(section.extent.bottom, 3);
    addGroundwater(section, 3.01F, 3);
    EXPECT_TRUE(section.levels.at(1).beyond_break);
    EXPECT_EQ(section.extent.bottom, 3);
}

TEST(SectionParts, GroundwaterThatIsNotGivenOrAbsurdIsLeftOut) {
    Section section;
    for (const float depth : {0.0F, 1e38F, -1e38F, 1e-38F, 10001.0F}) {
        addGroundwater(section, depth, 3);
        EXPECT_EQ(groundwaterPhrase(depth), "");
    }
    EXPECT_TRUE(section.levels.empty());
    EXPECT_EQ(groundwaterPhrase(-2.5F), ", hladina podzemní vody 2.5 m pod povrchem");
}

}  // namespace
}  // namespace mero::picture
