// SPDX-License-Identifier: MIT
/// What a screen reader says of a widget: its name, what it is for, and what kind of thing it is.
#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace mero::qt {

/// Names the widget: its caption without the colon, and the unit.
void describe(QWidget& widget, const QString& caption, const QString& unit = {});

/// Tells what kind of thing a widget is whose class does not say it: a group, a picture, a link. A link can
/// be pressed. To be called before anything else is told about the widget, best where it is made.
void speakAs(QWidget& widget, QAccessible::Role role);

}  // namespace mero::qt
