// SPDX-License-Identifier: MIT
// The grid: header format, cells and marks, and the order of cell change and click.
#include "platform/controls/grid.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/controls/form.h"
#include "platform/numbers/number_text.h"

namespace mero::platform {
namespace {

std::string textOf(GridCell cell) {
    return numbers::general(cell.row) + "/" + numbers::general(cell.column);
}

struct GridTest : testing::Test {
    GridTest() {
        grid.build("ID|<Dílčí plocha|Výběr", {0.2, 0.5, 0.3});
        grid.addRow({"1", "100"});
        grid.addRow({"2", "200"});
        grid.cell_changed = [this](GridCell left) {
            events.push_back("left " + textOf(left) + " for " + textOf(grid.current()));
        };
        grid.clicked = [this] {
            events.push_back("click " + textOf(grid.mouse()) + " at " + textOf(grid.current()));
        };
    }
    Form form{"frm", "Form"};
    Grid grid{form, "fg"};
    std::vector<std::string> events;
};

using Events = std::vector<std::string>;

TEST_F(GridTest, TheHeaderFormatGivesCaptionsAndWidths) {
    EXPECT_EQ(grid.rows()[0], (std::vector<std::string>{"ID", "Dílčí plocha", "Výběr"}));
    ASSERT_EQ(grid.columns().size(), 3U);
    EXPECT_DOUBLE_EQ(grid.columns()[1].width_fraction, 0.5);
}

TEST_F(GridTest, RowsAreFilledUpToTheNumberOfColumns) {
    EXPECT_EQ(grid.dataRows(), 2);
    EXPECT_EQ(grid.rows()[2], (std::vector<std::string>{"2", "200", ""}));
    EXPECT_EQ(grid.mark({1, 2}), std::nullopt);
}

TEST_F(GridTest, TheCellChangeComesBeforeTheClick) {
    grid.userClick({2, 1});
    EXPECT_EQ(events, (Events{"left 1/0 for 2/1", "click 2/1 at 2/1"}));
}

TEST_F(GridTest, ClickingTheCurrentCellIsAClickOnly) {
    grid.userClick({1, 0});
    EXPECT_EQ(events, (Events{"click 1/0 at 1/0"}));
}

TEST_F(GridTest, AnotherColumnOfTheSameRowIsAnotherCell) {
    grid.userClick({1, 2});
    EXPECT_EQ(events.front(), "left 1/0 for 1/2");
}

TEST_F(GridTest, RebuildingForgetsPicturesAndGoesBackToTheFirstCell) {
    grid.setMark({2, 2}, true);
    grid.userClick({2, 2});
    events.clear();
    grid.build("A|B", {});
    grid.addRow({"x"});
    EXPECT_EQ(grid.current(), (GridCell{1, 0}));
    EXPECT_EQ(grid.mark({1, 1}), std::nullopt);
    EXPECT_EQ(grid.dataRows(), 1);
    EXPECT_TRUE(events.empty()) << "rebuilding by code is no event";
}

TEST_F(GridTest, MarksAreOnOffOrNone) {
    grid.setMark({1, 2}, true);
    grid.setMark({2, 2}, false);
    EXPECT_EQ(grid.mark({1, 2}), std::optional(true));
    EXPECT_EQ(grid.mark({2, 2}), std::optional(false));
    grid.setMark({1, 2}, std::nullopt);
    EXPECT_EQ(grid.mark({1, 2}), std::nullopt);
}

TEST_F(GridTest, OnlyDataRowsHaveCellsToClick) {
    EXPECT_TRUE(grid.hasDataCell({1, 0}));
    EXPECT_TRUE(grid.hasDataCell({2, 2}));
    EXPECT_FALSE(grid.hasDataCell({0, 0}));
    EXPECT_FALSE(grid.hasDataCell({3, 0}));
    EXPECT_FALSE(grid.hasDataCell({1, 3}));
    EXPECT_FALSE(grid.hasDataCell({1, -1}));
}

TEST_F(GridTest, AGridThatWasNeverBuiltHasNoRows) {
    const Grid empty{form, "empty"};
    EXPECT_EQ(empty.dataRows(), 0);
    EXPECT_FALSE(empty.hasDataCell({1, 0}));
}

TEST_F(GridTest, AClickHandlerMayRebuildTheGrid) {
    grid.clicked = [this] { grid.build("A|B", {}); };
    grid.userClick({2, 1});
    EXPECT_EQ(grid.dataRows(), 0);
    EXPECT_EQ(grid.current(), (GridCell{1, 0}));
}

}  // namespace
}  // namespace mero::platform
