// SPDX-License-Identifier: MIT
/// Limits what text fields remember for undo.
/// Qt keeps every edit of a field for as long as the field lives, which is as long as the program runs.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace mero::qt {

/// A field forgets its edits after this many, before the next one.
inline constexpr int kMostEdits = 256;

/// The text, the cursor and the selection stay when the edits are forgotten.
void limitUndo(QLineEdit& line);
void limitUndo(QPlainTextEdit& area);

}  // namespace mero::qt
