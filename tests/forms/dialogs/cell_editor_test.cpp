// SPDX-License-Identifier: MIT
// The grid cell editor: opening shows a text, Enter and Escape and losing the focus close it.
#include "forms/dialogs/cell_editor.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/controls/form.h"

namespace mero::forms {
namespace {

using platform::Aspect;
using platform::Key;

struct CellEditorTest : testing::Test {
    CellEditorTest() {
        grid.build("A|B", {});
        grid.addRow({"1", "2"});
        grid.userClick({1, 1});
        box.changed = [this] { ++changes; };
        grid.observe([this](Aspect aspect) { grid_focus += aspect == Aspect::Focus ? 1 : 0; });
        box.observe([this](Aspect aspect) { box_focus += aspect == Aspect::Focus ? 1 : 0; });
    }
    platform::Form form{"frm", "Form"};
    platform::Grid grid{form, "fg"};
    platform::TextBox box{form, "txtSChange"};
    CellEditor editor{grid, box};
    int changes = 0;
    int grid_focus = 0;
    int box_focus = 0;
};

TEST_F(CellEditorTest, IsHiddenAtFirst) {
    EXPECT_FALSE(box.visible());
}

TEST_F(CellEditorTest, OpensOverTheCurrentCellWithoutRunningTheChangeHandler) {
    editor.open("12.5");
    EXPECT_TRUE(box.visible());
    EXPECT_EQ(box.text(), "12.5");
    EXPECT_EQ(editor.cell(), (platform::GridCell{1, 1}));
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(box_focus, 1);
}

TEST_F(CellEditorTest, EnterAndEscapeCloseItAndGiveTheFocusToTheGrid) {
    for (const Key key : {Key::Enter, Key::Escape}) {
        editor.open("1");
        grid_focus = 0;
        box.userKey(key);
        EXPECT_FALSE(box.visible());
        EXPECT_EQ(grid_focus, 1);
    }
    EXPECT_EQ(changes, 0);
}

TEST_F(CellEditorTest, LosingTheFocusHidesItWithoutTakingTheFocusBack) {
    editor.open("1");
    box.userLostFocus();
    EXPECT_FALSE(box.visible());
    EXPECT_EQ(grid_focus, 0);
}

TEST_F(CellEditorTest, ClosingAClosedEditorIsSilent) {
    int told = 0;
    box.observe([&](Aspect) { ++told; });
    editor.close();
    EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace mero::forms
