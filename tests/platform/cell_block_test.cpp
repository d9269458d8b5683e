// SPDX-License-Identifier: MIT
/// Blocks of cells on the clipboard.
#include "platform/cell_block.h"

#include <gtest/gtest.h>

namespace mero::platform {
namespace {

TEST(CellBlock, HasTabsBetweenCellsAndLineEndsBetweenRows) {
    const CellBlock expected{{"5", "434,3"}, {"10", "253"}};
    EXPECT_EQ(readCellBlock("5\t434,3\n10\t253"), expected);
    EXPECT_EQ(readCellBlock("5\t434,3\r\n10\t253\r\n"), expected);
    EXPECT_EQ(readCellBlock("5\t434,3\r10\t253\r"), expected);
}

TEST(CellBlock, OfOneCell) {
    EXPECT_EQ(readCellBlock("1 200"), (CellBlock{{"1 200"}}));
    EXPECT_EQ(readCellBlock(" 1 \n\n"), (CellBlock{{"1"}}));
}

TEST(CellBlock, KeepsEmptyCellsAndRowsInside) {
    EXPECT_EQ(readCellBlock("\t2\n\n3\t"), (CellBlock{{"", "2"}, {""}, {"3", ""}}));
}

TEST(CellBlock, OfNothing) {
    EXPECT_TRUE(readCellBlock("").empty());
    EXPECT_TRUE(readCellBlock("\r\n").empty());
}

TEST(CellBlock, QuotedCellsMayHoldAnything) {
    EXPECT_EQ(readCellBlock("\"a\nb\"\t\"c\"\"d\"\"\""), (CellBlock{{"a\nb", "c\"d\""}}));
    EXPECT_EQ(readCellBlock("\"Na Vsi\" 5\t1"), (CellBlock{{"\"Na Vsi\" 5", "1"}})) << "no quoted cell";
    EXPECT_EQ(readCellBlock("\"a\t1"), (CellBlock{{"\"a", "1"}}));
}

TEST(CellBlock, IsReadAsItWasWritten) {
    const CellBlock cells{{"1200", "0,9", "Střecha \"A\""}, {"", "x\ty", "z\n"}};
    EXPECT_EQ(writeCellBlock(cells), "1200\t0,9\t\"Střecha \"\"A\"\"\"\n\t\"x\ty\"\t\"z\n\"\n");
    EXPECT_EQ(readCellBlock(writeCellBlock(cells)), cells);
}

}  // namespace
}  // namespace mero::platform
