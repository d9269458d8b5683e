// SPDX-License-Identifier: MIT
// When option buttons run their handlers: at every selection, never at a deselection.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/buttons.h"
#include "platform/controls/form.h"

namespace mero::platform {
namespace {

struct OptionButtonTest : testing::Test {
    OptionButtonTest() {
        first.clicked = [this] { runs.emplace_back("first"); };
        second.clicked = [this] { runs.emplace_back("second"); };
    }

    Form form{"frm", "Form"};
    OptionButton::Group group = std::make_shared<std::vector<OptionButton*>>();
    OptionButton first{form, "opt(0)", "první", group};
    OptionButton second{form, "opt(1)", "druhý", group};
    std::vector<std::string> runs;
};

using Runs = std::vector<std::string>;

TEST_F(OptionButtonTest, NothingIsSelectedAtFirst) {
    EXPECT_FALSE(first.selected());
    EXPECT_FALSE(second.selected());
}

TEST_F(OptionButtonTest, SelectingByUserOrByCodeRunsTheHandler) {
    first.userClick();
    second.setSelected(true);
    EXPECT_EQ(runs, (Runs{"first", "second"}));
}

TEST_F(OptionButtonTest, SelectingAgainRunsTheHandlerAgain) {
    first.userClick();
    first.userClick();
    first.setSelected(true);
    EXPECT_EQ(runs, (Runs{"first", "first", "first"}));
    EXPECT_TRUE(first.selected());
}

TEST_F(OptionButtonTest, SettingToNotSelectedRunsNothing) {
    first.setSelected(true);
    runs.clear();
    first.setSelected(false);
    second.setSelected(false);
    EXPECT_TRUE(runs.empty());
    EXPECT_FALSE(first.selected());
}

TEST_F(OptionButtonTest, SelectingOneDeselectsTheOtherSilently) {
    first.setSelected(true);
    runs.clear();
    second.userClick();
    EXPECT_FALSE(first.selected());
    EXPECT_TRUE(second.selected());
    EXPECT_EQ(runs, (Runs{"second"}));
}

TEST_F(OptionButtonTest, GroupsDoNotTouchEachOther) {
    OptionButton other{form, "other(0)", "", std::make_shared<std::vector<OptionButton*>>()};
    first.setSelected(true);
    other.setSelected(true);
    EXPECT_TRUE(first.selected());
    EXPECT_TRUE(other.selected());
}

TEST_F(OptionButtonTest, TheHandlerSeesTheStateComplete) {
    first.setSelected(true);
    bool first_was_selected = true;
    bool second_was_selected = false;
    second.clicked = [&] {
        first_was_selected = first.selected();
        second_was_selected = second.selected();
    };
    second.userClick();
    EXPECT_FALSE(first_was_selected);
    EXPECT_TRUE(second_was_selected);
}

TEST_F(OptionButtonTest, AHandlerMaySelectTheOtherMember) {
    second.clicked = [this] {
        runs.emplace_back("second");
        first.setSelected(true);
    };
    second.userClick();
    EXPECT_EQ(runs, (Runs{"second", "first"}));
    EXPECT_TRUE(first.selected());
    EXPECT_FALSE(second.selected());
}

}  // namespace
}  // namespace mero::platform
