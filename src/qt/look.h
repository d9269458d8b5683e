// SPDX-License-Identifier: MIT
/// How fields look: inputs, results, and fields that the program has greyed.
/// They follow when the desktop changes its colours.
/// All colours come from the user's palette and all sizes from the user's font.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace mero::qt {

/// A field that only the program fills: people can read and copy it, not change it.
void showAsResult(QLineEdit& field);

/// A warning that stands on the window all the time.
void showAsWarning(QLabel& label);

/// Whether the window shows light texts on a dark ground.
[[nodiscard]] bool isDark(const QPalette& palette);

/// Button-face background, or the field's normal one.
void setGreyed(QWidget& field, bool greyed);

/// Width of `characters` average characters in the widget's font.
[[nodiscard]] int textWidth(const QWidget& widget, int characters);

/// Distance between things that belong together, from the font.
[[nodiscard]] int gap(const QWidget& widget);

/// `first` and `second` mixed: 0 gives the first colour, 1 the second.
[[nodiscard]] QColor mixed(const QColor& first, const QColor& second, double share);

}  // namespace mero::qt
