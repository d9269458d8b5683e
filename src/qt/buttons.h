// SPDX-License-Identifier: MIT
/// Buttons, labels and the up-down control as widgets.
/// Only the user's actions reach the control; the widget then shows the control's new state.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "platform/controls/buttons.h"
#include "qt/widget_kit.h"

namespace mero::qt {

QPushButton& makeButton(WidgetKit& kit, platform::Button& button, QWidget& parent);

/// An option button. The members of a group share a parent that holds no other option buttons.
QRadioButton& makeOption(WidgetKit& kit, platform::OptionButton& option, QWidget& parent);

QCheckBox& makeCheckBox(WidgetKit& kit, platform::CheckBox& box, QWidget& parent);

/// A label that shows a text.
QLabel& makeLabel(WidgetKit& kit, platform::Label& label, QWidget& parent);

/// A label that looks and works like a link, by mouse and by keyboard.
QLabel& makeLink(WidgetKit& kit, platform::Label& label, QWidget& parent);

/// Two arrow buttons with the object names "up" and "down".
/// @param meaning the quantity that they count, for assistive technology
QWidget& makeUpDown(WidgetKit& kit, platform::UpDown& control, const QString& meaning, QWidget& parent);

}  // namespace mero::qt
