// SPDX-License-Identifier: MIT
/// Buttons, labels and the up-down control as widgets.
/// Only what a person does is passed on; the state that the control then has is what is shown.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "platform/controls/buttons.h"
#include "qt/widget_kit.h"

namespace mero::qt {

QPushButton& makeButton(WidgetKit& kit, platform::Button& button, QWidget& parent);

/// An option button. The members of one group share a parent that holds no other option buttons.
QRadioButton& makeOption(WidgetKit& kit, platform::OptionButton& option, QWidget& parent);

QCheckBox& makeCheckBox(WidgetKit& kit, platform::CheckBox& box, QWidget& parent);

/// A label that shows a text.
QLabel& makeLabel(WidgetKit& kit, platform::Label& label, QWidget& parent);

/// A label that looks and acts like a link, by mouse and by keyboard.
QLabel& makeLink(WidgetKit& kit, platform::Label& label, QWidget& parent);

/// Two arrows; their object names are "up" and "down".
/// @param meaning what is counted, for assistive technology
QWidget& makeUpDown(WidgetKit& kit, platform::UpDown& control, const QString& meaning, QWidget& parent);

}  // namespace mero::qt
