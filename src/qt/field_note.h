// SPDX-License-Identifier: MIT
/// A remark below a field: a wrapped line that takes no room while it is empty.
#pragma once

#include <QLabel>

#include "platform/controls/control.h"

namespace mero::qt {

[[nodiscard]] QLabel& makeFieldNote(const platform::Control& control, QWidget& parent);
/// The note of a control below `holder`, null when it has none.
[[nodiscard]] QLabel* findFieldNote(const platform::Control& control, const QWidget& holder);

/// Shows the text, with a sign in front when it is a caution; an empty one hides the note.
void tellInNote(QLabel& note, const QString& text, bool caution);

}  // namespace mero::qt
