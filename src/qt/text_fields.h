// SPDX-License-Identifier: MIT
/// Text boxes as widgets: one line, or several.
/// Text that the user types goes to the control; text that code assigns is shown and causes no user event.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "platform/controls/text_box.h"
#include "qt/number_line.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// A single-line box. Enter and Escape run the box's key handler and do nothing else.
QLineEdit& makeLineEdit(WidgetKit& kit, platform::TextBox& box, QWidget& parent);

/// A single-line box for a number. What a person enters is cleaned first; what a script types is not.
NumberLine& makeNumberLine(WidgetKit& kit, platform::TextBox& box, QWidget& parent,
                           std::optional<NumberEntry> entry);

/// A multi-line box; the control's line breaks are "\r\n". The Tab key moves on to the next field.
QPlainTextEdit& makeTextArea(WidgetKit& kit, platform::TextBox& box, QWidget& parent);

}  // namespace mero::qt
