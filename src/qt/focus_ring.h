// SPDX-License-Identifier: MIT
/// A ring around the widget that has the focus: the same for every kind of widget, in every palette.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QWidget>

namespace mero::qt {

/// A colour that stands out from fields and from what is around them.
[[nodiscard]] QColor ringColour(const QPalette& palette);

/// Draws the ring just inside of `place`, as thick as suits the font.
void paintRing(QPainter& painter, const QRectF& place, const QPalette& palette);

/// Shows the ring in this window from now on. Widgets that show the focus on one of their parts (a cell, a
/// tab) call `showsFocusItself`.
void addFocusRing(QWidget& window);

void showsFocusItself(QWidget& widget);

}  // namespace mero::qt
