// SPDX-License-Identifier: MIT
// The tab control: its handler gets the previous tab, by the user and by code, also nested.
#include <gtest/gtest.h>

#include <vector>

#include "platform/controls/containers.h"
#include "platform/controls/form.h"
#include "platform/controls/text_box.h"
#include "support/errors.h"

namespace mero::platform {
namespace {

struct TabControlTest : testing::Test {
    TabControlTest() {
        tabs.changed = [this](int previous) { changes.push_back({previous, tabs.position()}); };
        form.show();
    }
    using Change = std::pair<int, int>;
    Form form{"frm", "Form"};
    TabControl tabs{form, "SSTab1", {"nultá", "první", "druhá", "třetí"}};
    std::vector<Change> changes;
};

using Changes = std::vector<std::pair<int, int>>;

TEST_F(TabControlTest, TheHandlerRunsWithThePreviousTabByUserAndByCode) {
    tabs.userSelect(2);
    tabs.setPosition(1);
    EXPECT_EQ(changes, (Changes{{0, 2}, {2, 1}}));
}

TEST_F(TabControlTest, TheCurrentTabChosenAgainRunsNothing) {
    tabs.userSelect(0);
    tabs.setPosition(0);
    EXPECT_TRUE(changes.empty());
}

TEST_F(TabControlTest, AHandlerMaySwitchBackAndRunsForThatToo) {
    tabs.changed = [this](int previous) {
        changes.push_back({previous, tabs.position()});
        if (tabs.position() == 3) {
            tabs.setPosition(previous);
        }
    };
    tabs.userSelect(1);
    tabs.userSelect(3);
    EXPECT_EQ(changes, (Changes{{0, 1}, {1, 3}, {3, 1}}));
    EXPECT_EQ(tabs.position(), 1);
}

TEST_F(TabControlTest, ATabThatIsNotThereIsARangeError) {
    EXPECT_EQ(test::errorNumberOf([&] {
                  tabs.setPosition(4);
                  return 0;
              }),
              9);
    EXPECT_EQ(test::errorNumberOf([&] {
                  tabs.setPosition(-1);
                  return 0;
              }),
              9);
    EXPECT_EQ(tabs.position(), 0);
}

TEST_F(TabControlTest, OnlyTheCurrentPageIsOnScreen) {
    const TextBox first{tabs.page(0), "txtFirst"};
    const TextBox second{tabs.page(1), "txtSecond"};
    EXPECT_TRUE(first.onScreen());
    EXPECT_FALSE(second.onScreen());
    EXPECT_TRUE(second.visible()) << "its own state says nothing of its page";
    tabs.setPosition(1);
    EXPECT_FALSE(first.onScreen());
    EXPECT_TRUE(second.onScreen());
}

}  // namespace
}  // namespace mero::platform
