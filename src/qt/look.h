// SPDX-License-Identifier: MIT
/// Look of fields: inputs, results, and fields that the program has greyed.
/// All colours come from the user's palette, also after it changes, and all sizes from the user's font.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace mero::qt {

/// Shows the field as a result: read-only, but its text can be copied.
void showAsResult(QLineEdit& field);

/// Shows the button as the one that its page is about.
void showAsPrimary(QWidget& button);
[[nodiscard]] bool isPrimary(const QWidget& button);

/// The font of titles beside texts in `font`.
[[nodiscard]] QFont titleFont(QFont font);

/// Shows the label as a permanent warning.
void showAsWarning(QLabel& label);

/// True when texts are light on a dark background.
[[nodiscard]] bool isDark(const QPalette& palette);

/// Sets the button-face background, or the field's normal one.
void setGreyed(QWidget& field, bool greyed);

/// Width of `characters` average characters in the widget's font.
[[nodiscard]] int textWidth(const QWidget& widget, int characters);

/// Gap between widgets that belong together, from the font.
[[nodiscard]] int gap(const QWidget& widget);

/// `first` and `second` mixed: 0 gives the first colour, 1 the second.
[[nodiscard]] QColor mixed(const QColor& first, const QColor& second, double share);

}  // namespace mero::qt
