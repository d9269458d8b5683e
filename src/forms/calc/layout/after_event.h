// SPDX-License-Identifier: MIT
/// Keeps what is shown around the fields up to date: once after each event, so that the event's own handlers
/// pay next to nothing for it.
#pragma once

#include <QWidget>
#include <functional>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

/// Calls `refresh` when the widget is shown, and while it is visible after each event that changed a control
/// of the program. The widget must stand in the main window already.
void refreshAfterEvents(frmCalc& form, QWidget& widget, std::function<void()> refresh);

}  // namespace mero::forms
