// SPDX-License-Identifier: MIT
// When lists run their handler: at every selection; not when emptied, not for a text they lack.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/drop_list.h"
#include "platform/controls/form.h"
#include "support/errors.h"

namespace mero::platform {
namespace {

struct DropListTest : testing::Test {
    DropListTest() {
        for (const char* item : {"jedna", "dvě", "tři"}) {
            list.add(item);
        }
        list.clicked = [this] { picked.push_back(list.text()); };
    }
    Form form{"frm", "Form"};
    DropList list{form, "cbo"};
    std::vector<std::string> picked;
};

using Texts = std::vector<std::string>;

TEST_F(DropListTest, FillingSelectsNothingAndRunsNothing) {
    EXPECT_EQ(list.position(), -1);
    EXPECT_EQ(list.text(), "");
    list.add("čtyři");
    EXPECT_TRUE(picked.empty());
}

TEST_F(DropListTest, SelectingByPositionAndByTextByUserAndByCode) {
    list.userSelect(2);
    list.select(0);
    list.selectText("dvě");
    EXPECT_EQ(picked, (Texts{"tři", "jedna", "dvě"}));
    EXPECT_EQ(list.position(), 1);
}

TEST_F(DropListTest, SelectingTheSelectedEntryRunsAgain) {
    list.select(1);
    list.select(1);
    list.userSelect(1);
    list.selectText("dvě");
    EXPECT_EQ(picked.size(), 4U);
}

TEST_F(DropListTest, ATextThatIsNotInTheListSelectsNothingAndRunsNothing) {
    list.select(1);
    picked.clear();
    list.selectText("pět");
    list.selectText("");
    list.selectText("DVĚ");
    EXPECT_TRUE(picked.empty());
    EXPECT_EQ(list.position(), 1);
}

TEST_F(DropListTest, EmptyingRunsNothingAndLeavesNothingSelected) {
    list.select(1);
    picked.clear();
    list.clear();
    EXPECT_TRUE(picked.empty());
    EXPECT_EQ(list.position(), -1);
    EXPECT_EQ(list.text(), "");
    EXPECT_TRUE(list.items().empty());
}

TEST_F(DropListTest, APositionOutsideIsARangeError) {
    EXPECT_EQ(test::errorNumberOf([&] {
                  list.select(3);
                  return 0;
              }),
              9);
    EXPECT_EQ(test::errorNumberOf([&] {
                  list.select(-1);
                  return 0;
              }),
              9);
    EXPECT_TRUE(picked.empty());
    EXPECT_EQ(list.position(), -1);
}

TEST_F(DropListTest, AHandlerMayRefillAndSelectAgain) {
    list.clicked = [this] {
        picked.push_back(list.text());
        if (list.text() == "tři") {
            list.clear();
            list.add("nová");
            list.select(0);
        }
    };
    list.userSelect(2);
    EXPECT_EQ(picked, (Texts{"tři", "nová"}));
    EXPECT_EQ(list.text(), "nová");
}

TEST_F(DropListTest, GettingTheFocusRunsItsOwnHandlerOnly) {
    int focused = 0;
    list.got_focus = [&] { ++focused; };
    list.userGotFocus();
    EXPECT_EQ(focused, 1);
    EXPECT_TRUE(picked.empty());
}

}  // namespace
}  // namespace mero::platform
