// SPDX-License-Identifier: MIT
/// A field forgets old edits and nothing else.
#include "qt/undo_limit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

namespace mero::qt {
namespace {

TEST(UndoLimit, ALineForgetsItsEditsAfterSomeAndKeepsTextCursorAndSelection) {
    QLineEdit line;
    limitUndo(line);
    for (int edit = 0; edit < kMostEdits - 1; ++edit) {
        QTest::keyClicks(&line, "a");
    }
    EXPECT_TRUE(line.isUndoAvailable());
    line.setCursorPosition(3);
    QTest::keyClicks(&line, "b");
    EXPECT_FALSE(line.isUndoAvailable());
    EXPECT_EQ(line.text(), "aaab" + QString(kMostEdits - 4, 'a'));
    EXPECT_EQ(line.cursorPosition(), 4);
    QTest::keyClicks(&line, "c");
    EXPECT_TRUE(line.isUndoAvailable());
}

TEST(UndoLimit, AnAreaForgetsItsEditsOnceTheEventIsOver) {
    QPlainTextEdit area;
    limitUndo(area);
    for (int edit = 0; edit < 2 * kMostEdits; ++edit) {
        QTest::keyClicks(&area, "a");
    }
    QApplication::processEvents();
    EXPECT_EQ(area.toPlainText(), QString(2 * kMostEdits, 'a'));
    EXPECT_FALSE(area.document()->isUndoAvailable());
    QTest::keyClicks(&area, "b");
    EXPECT_TRUE(area.document()->isUndoAvailable());
}

}  // namespace
}  // namespace mero::qt
