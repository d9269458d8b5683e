// SPDX-License-Identifier: MIT
/// Counts edits.
#include "qt/undo_limit.h"

#include <QSignalBlocker>
#include <QTextDocument>

namespace mero::qt {
namespace {

/// A line has no call for this; a text set by code drops the edits.
void forgetEdits(QLineEdit& line) {
    const QSignalBlocker silence(line);
    const int cursor = line.cursorPosition();
    const int begin = line.selectionStart();
    const int length = line.selectionLength();
    line.setText(line.text());
    if (begin < 0) {
        line.setCursorPosition(cursor);
    } else if (cursor == begin) {
        line.setSelection(begin + length, -length);
    } else {
        line.setSelection(begin, length);
    }
}

}  // namespace

void limitUndo(QLineEdit& line) {
    QObject::connect(&line, &QLineEdit::textEdited, &line, [&line, edits = 0]() mutable {
        if (++edits >= kMostEdits) {
            edits = 0;
            forgetEdits(line);
        }
    });
}

void limitUndo(QPlainTextEdit& area) {
    QObject::connect(area.document(), &QTextDocument::contentsChanged, &area, [&area, edits = 0]() mutable {
        if (++edits >= kMostEdits) {
            edits = 0;
            // Not within the edit that is just made.
            QMetaObject::invokeMethod(
                &area, [&area] { area.document()->clearUndoRedoStacks(); }, Qt::QueuedConnection);
        }
    });
}

}  // namespace mero::qt
