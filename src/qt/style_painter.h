// SPDX-License-Identifier: MIT
/// Draws the parts of controls: outlines, marks, cards, tabs. All sizes come from the font.
#pragma once

#include <QPainter>
#include <QStyleOption>

namespace mero::qt {

/// Draws a field's background and its outline.
void paintField(QPainter& painter, const QStyleOption& option, const QColor& fill);
/// Draws the outline of a table or a text area, whose content is painted by others.
void paintFrame(QPainter& painter, const QStyleOption& option);
void paintButton(QPainter& painter, const QStyleOption& option, bool primary);
void paintRadioMark(QPainter& painter, const QStyleOption& option);
/// Draws a tick that fills the box.
void paintTick(QPainter& painter, const QRectF& box, const QColor& colour);
void paintCheckMark(QPainter& painter, const QStyleOption& option);
void paintDropList(QPainter& painter, const QStyleOption& option, const QRect& arrow);
void paintHeading(QPainter& painter, const QStyleOption& option);

/// Draws a card with a strip for its title on top, `strip_height` high; 0 for none.
void paintCard(QPainter& painter, const QStyleOption& option, int strip_height);
/// Draws a tab, the selected one with a bar in the colour of selections.
void paintTab(QPainter& painter, const QStyleOption& option);

}  // namespace mero::qt
