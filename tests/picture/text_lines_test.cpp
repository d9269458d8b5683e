// SPDX-License-Identifier: MIT
// Texts are broken between words, and never cut.
#include "picture/text_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TextLines, BreakBetweenWords) {
    EXPECT_THAT(brokenLines("jedna dvě tři", 70, plainSizes()), ElementsAre("jedna dvě", "tři"));
    EXPECT_THAT(brokenLines("jedna dvě tři", 91, plainSizes()), ElementsAre("jedna dvě tři"));
    EXPECT_THAT(brokenLines("", 91, plainSizes()), IsEmpty());
}

TEST(TextLines, ANumberStaysWithItsUnitAndItsGroups) {
    // 14 characters of 7 would fit "strana 1 013.0".
    EXPECT_THAT(brokenLines("strana 1 013.0 m", 98, plainSizes()), ElementsAre("strana", "1 013.0 m"));
    EXPECT_THAT(brokenLines("déšť 15 min trval", 84, plainSizes()), ElementsAre("déšť 15 min", "trval"));
}

TEST(TextLines, AWordThatIsTooWideMakesTheTextUnusable) {
    EXPECT_THAT(brokenLines("dvě jednadvacet", 70, plainSizes()), IsEmpty());
}

TEST(TextLines, ACentredTextStaysBetweenItsBounds) {
    const auto at = [](double centre) {
        return centredText("abcd", centre, 5, 0, 100, plainSizes(), Emphasis::Plain).box;
    };
    EXPECT_EQ(at(50), (Box{36, 5, 64, 19}));
    EXPECT_EQ(at(10), (Box{0, 5, 28, 19}));
    EXPECT_EQ(at(95), (Box{72, 5, 100, 19}));
}

TEST(TextLines, AHintStandsInTheMiddle) {
    // Lines of at most 100 - 14 wide: two of 14 high in a sheet of 100.
    const Drawing drawing = onlyText("jedna dvě tři", {100, 100}, plainSizes());
    ASSERT_EQ(drawing.texts.size(), 2U);
    EXPECT_EQ(drawing.texts[0].box, (Box{18.5, 36, 81.5, 50}));
    EXPECT_EQ(drawing.texts[1].text, "tři");
    EXPECT_EQ(drawing.texts[1].box.top, 50);
}

TEST(TextLines, AHintWithoutRoomIsNotDrawn) {
    EXPECT_THAT(onlyText("jedna dvě tři", {100, 27}, plainSizes()).texts, IsEmpty());
    EXPECT_THAT(onlyText("jedna", {40, 100}, plainSizes()).texts, IsEmpty());
    EXPECT_THAT(onlyText("jedna", {0, 0}, plainSizes()).texts, IsEmpty());
}

}  // namespace
}  // namespace mero::picture
