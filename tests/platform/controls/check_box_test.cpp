// SPDX-License-Identifier: MIT
// When check boxes run their handler: only when the value changes.
#include <gtest/gtest.h>

#include "platform/controls/buttons.h"
#include "platform/controls/form.h"

namespace mero::platform {
namespace {

struct CheckBoxTest : testing::Test {
    CheckBoxTest() {
        box.clicked = [this] { ++runs; };
    }
    Form form{"frm", "Form"};
    CheckBox box{form, "chk", "Drenáž"};
    int runs = 0;
};

TEST_F(CheckBoxTest, TheUserTogglesIt) {
    box.userClick();
    EXPECT_TRUE(box.checked());
    box.userClick();
    EXPECT_FALSE(box.checked());
    EXPECT_EQ(runs, 2);
}

TEST_F(CheckBoxTest, CodeRunsTheHandlerOnlyWithAChange) {
    box.setChecked(false);
    EXPECT_EQ(runs, 0);
    box.setChecked(true);
    box.setChecked(true);
    EXPECT_EQ(runs, 1);
    box.setChecked(false);
    EXPECT_EQ(runs, 2);
}

TEST_F(CheckBoxTest, AHandlerMayTakeTheTickBack) {
    box.clicked = [this] {
        ++runs;
        box.setChecked(false);
    };
    box.userClick();
    EXPECT_FALSE(box.checked());
    EXPECT_EQ(runs, 2) << "once for the tick, once for taking it back";
}

}  // namespace
}  // namespace mero::platform
