// SPDX-License-Identifier: MIT
/// Undo and redo of a whole window in place of each field's own: the keys go to the window's commands, and
/// the fields' context menus offer none.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace mero::qt {

/// The window undoes itself. To be called before its fields are made.
void undoByWindow(QWidget& window);
/// Is the field in such a window?
[[nodiscard]] bool isUndoneByWindow(const QWidget& field);

/// Leaves undo and redo to the window, where it undoes itself; elsewhere does nothing.
void leaveUndoToWindow(QLineEdit& line);
void leaveUndoToWindow(QPlainTextEdit& area);

}  // namespace mero::qt
