// SPDX-License-Identifier: MIT
/// What a screen reader says about a widget: its name, description and role.
#pragma once

#include <QAccessible>
#include <QString>
#include <QWidget>

namespace mero::qt {

/// Sets the accessible name: the caption without the colon, and the unit.
void describe(QWidget& widget, const QString& caption, const QString& unit = {});

/// Sets the role of a widget whose class does not give it: a group, a picture, a link. A link gets a press
/// action. Call it before any other accessible property is set, best where the widget is created.
void speakAs(QWidget& widget, QAccessible::Role role);

}  // namespace mero::qt
