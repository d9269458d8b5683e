// SPDX-License-Identifier: MIT
/// The form learns of everything that a user does, before the handlers run, and of nothing that code does.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/buttons.h"
#include "platform/controls/containers.h"
#include "platform/controls/drop_list.h"
#include "platform/controls/form.h"
#include "platform/controls/grid.h"
#include "platform/controls/text_box.h"

namespace mero::platform {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UserDoor : public ::testing::Test {
  protected:
    UserDoor() {
        form.before_user_acts = [this](const Control& control) { heard.push_back(control.name()); };
        list.add("a");
        grid.build("x|y", {});
        grid.addRow({"1", "2"});
    }

    Form form{"frm", ""};
    TextBox box{form, "box"};
    Button button{form, "button", ""};
    Label label{form, "label", ""};
    OptionButton option{form, "option", "", std::make_shared<std::vector<OptionButton*>>()};
    CheckBox check{form, "check", ""};
    UpDown arrows{form, "arrows"};
    DropList list{form, "list"};
    Grid grid{form, "grid"};
    TabControl tabs{form, "tabs", {"a", "b"}};
    std::vector<std::string> heard;
};

TEST_F(UserDoor, TellsWhatAUserActsOn) {
    box.userEdit("1");
    box.userKey(Key::Enter);
    box.userGotFocus();
    box.userLostFocus();
    button.userClick();
    label.userClick();
    option.userClick();
    check.userClick();
    arrows.userSpin(UpDown::Direction::Up);
    list.userSelect(0);
    list.userGotFocus();
    grid.userClick({1, 0});
    tabs.userSelect(1);
    form.userCloses();
    EXPECT_THAT(heard, ElementsAre("box", "box", "box", "box", "button", "label", "option", "check", "arrows",
                                   "list", "list", "grid", "tabs", "frm"));
}

TEST_F(UserDoor, TellsItBeforeTheHandlersRun) {
    box.changed = [this] { heard.emplace_back("changed"); };
    form.before_user_acts = [this](const Control&) { heard.push_back("before: " + box.text()); };
    box.showText("1");
    box.userEdit("2");
    EXPECT_THAT(heard, ElementsAre("before: 1", "changed"));
}

TEST_F(UserDoor, TellsNothingOfTheSameText) {
    box.showText("1");
    box.userEdit("1");
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(UserDoor, TellsNothingOfWhatCodeDoes) {
    box.setText("1");
    option.setSelected(true);
    check.setChecked(true);
    list.select(0);
    tabs.setPosition(1);
    EXPECT_THAT(heard, IsEmpty());
}

}  // namespace
}  // namespace mero::platform
