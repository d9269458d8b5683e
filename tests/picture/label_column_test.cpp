// SPDX-License-Identifier: MIT
// Labels of a column keep their order and never overlap.
#include "picture/label_column.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mero::picture {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LabelColumn, LabelsWithRoomStandWhereTheyWantTo) {
    EXPECT_THAT(labelTops({20, 60}, 10, 0, 100), ElementsAre(15, 55));
}

TEST(LabelColumn, LabelsTooNearToEachOtherMoveDown) {
    EXPECT_THAT(labelTops({20, 22, 24}, 10, 0, 100), ElementsAre(15, 25, 35));
}

TEST(LabelColumn, AtTheBottomTheyMoveUp) {
    EXPECT_THAT(labelTops({95, 99, 100}, 10, 0, 100), ElementsAre(70, 80, 90));
}

TEST(LabelColumn, TheOrderOfTheListIsThatOfImportanceNotOfPlace) {
    EXPECT_THAT(labelTops({60, 20}, 10, 0, 100), ElementsAre(55, 15));
}

TEST(LabelColumn, WhatFindsNoRoomIsLeftOutFromTheEnd) {
    EXPECT_THAT(labelTops({5, 6, 7}, 10, 0, 25), ElementsAre(0, 10));
    EXPECT_THAT(labelTops({5}, 10, 0, 9), IsEmpty());
    EXPECT_THAT(labelTops({5}, 10, 20, 10), IsEmpty());
}

}  // namespace
}  // namespace mero::picture
