// SPDX-License-Identifier: MIT
// Properties of all controls: names, containers, whether they are on screen and reachable, observers.
#include "platform/controls/control.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/buttons.h"
#include "platform/controls/containers.h"
#include "platform/controls/control_array.h"
#include "platform/controls/form.h"
#include "platform/controls/text_box.h"
#include "support/errors.h"

namespace mero::platform {
namespace {

struct ControlTest : testing::Test {
    Form form{"frm", "Form"};
    Panel panel{form, "pic"};
    TextBox box{panel, "txt"};
};

TEST_F(ControlTest, AFormIsCreatedHidden) {
    EXPECT_FALSE(form.visible());
    EXPECT_FALSE(box.onScreen());
    form.show();
    EXPECT_TRUE(box.onScreen());
}

TEST_F(ControlTest, WhatAHiddenPanelHoldsIsNotOnScreen) {
    form.show();
    panel.hide();
    EXPECT_TRUE(box.visible());
    EXPECT_FALSE(box.onScreen());
}

TEST_F(ControlTest, WhatADisabledContainerHoldsCannotBeReached) {
    EXPECT_TRUE(box.reachable());
    form.setEnabled(false);
    EXPECT_TRUE(box.enabled());
    EXPECT_FALSE(box.reachable());
    form.setEnabled(true);
    box.setEnabled(false);
    EXPECT_FALSE(box.reachable());
}

TEST_F(ControlTest, ControlsAreFoundByTheirNames) {
    EXPECT_EQ(form.find("txt"), &box);
    EXPECT_EQ(form.find("TXT"), nullptr);
    EXPECT_EQ(form.find(""), nullptr);
    EXPECT_EQ(form.controls(), (std::vector<Control*>{&panel, &box}));
}

TEST_F(ControlTest, ArrayMembersCarryTheirIndexInTheName) {
    ControlArray<TextBox> array{"txtVsakPlocha"};
    array.add(5, panel);
    array.add(3, panel, "0.35");
    EXPECT_EQ(form.find("txtVsakPlocha(3)"), &array[3]);
    EXPECT_EQ(array[3].text(), "0.35");
    EXPECT_EQ(test::errorNumberOf([&] { return &array[4]; }), 9);
    std::vector<int> order;
    array.forEach([&](int index, TextBox&) { order.push_back(index); });
    EXPECT_EQ(order, (std::vector<int>{3, 5}));
}

TEST_F(ControlTest, ObserversAreToldBeforeTheHandlerRuns) {
    std::vector<std::string> order;
    box.observe([&](Aspect aspect) { order.emplace_back(aspect == Aspect::Text ? "shown" : "?"); });
    box.changed = [&] { order.emplace_back("handler"); };
    box.setText("1");
    EXPECT_EQ(order, (std::vector<std::string>{"shown", "handler"}));
}

TEST_F(ControlTest, EveryChangeReachesTheObservers) {
    std::vector<Aspect> aspects;
    panel.observe([&](Aspect aspect) { aspects.push_back(aspect); });
    panel.hide();
    panel.setEnabled(false);
    panel.moveTo(0, 3000);
    panel.setFocus();
    EXPECT_EQ(aspects, (std::vector<Aspect>{Aspect::Visible, Aspect::Enabled, Aspect::Place, Aspect::Focus}));
    EXPECT_EQ(panel.top(), 3000);
}

TEST_F(ControlTest, AnObserverMayAddOthersWhileItRuns) {
    constexpr int kMany = 100;
    int told = 0;
    bool added = false;
    const std::string kept = "a text that is too long to stand inside of the function object";
    std::string seen;
    panel.observe([&, kept](Aspect) {
        if (!added) {
            added = true;
            for (int i = 0; i < kMany; ++i) {
                panel.observe([&told](Aspect) { ++told; });
            }
        }
        seen = kept;
    });
    panel.hide();
    EXPECT_EQ(seen, kept);
    told = 0;
    panel.show();
    EXPECT_EQ(told, kMany);
}

TEST_F(ControlTest, ButtonsLabelsAndArrowsRunTheirHandlers) {
    std::vector<std::string> runs;
    Button button{form, "cmd", "OK"};
    Label label{form, "lbl", "odkaz"};
    UpDown arrows{form, "upd"};
    button.userClick();
    label.userClick();
    arrows.userSpin(UpDown::Direction::Up);
    button.clicked = [&] { runs.emplace_back("button"); };
    label.clicked = [&] { runs.emplace_back("label"); };
    arrows.spun = [&](UpDown::Direction direction) {
        runs.emplace_back(direction == UpDown::Direction::Up ? "up" : "down");
    };
    button.userClick();
    label.userClick();
    arrows.userSpin(UpDown::Direction::Down);
    EXPECT_EQ(runs, (std::vector<std::string>{"button", "label", "down"}));
}

}  // namespace
}  // namespace mero::platform
