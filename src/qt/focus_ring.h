// SPDX-License-Identifier: MIT
/// Draws a ring around the widget with the focus: the same for every kind of widget and every palette.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QWidget>

namespace mero::qt {

/// A colour that contrasts with fields and with their surroundings.
[[nodiscard]] QColor ringColour(const QPalette& palette);

/// Draws the ring just inside `place`; its thickness depends on the font.
void paintRing(QPainter& painter, const QRectF& place, const QPalette& palette);

/// Shows the ring in this window from now on. Widgets that mark the focus on one of their parts (a cell, a
/// tab) call `showsFocusItself`.
void addFocusRing(QWidget& window);

void showsFocusItself(QWidget& widget);

}  // namespace mero::qt
