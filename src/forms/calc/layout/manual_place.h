// SPDX-License-Identifier: MIT
/// Where the manual speaks of what one is working at.
#pragma once

#include "forms/calc/frm_calc.h"
#include "qt/manual_window.h"

namespace mero::forms {

/// The chapter of the dialog, tab or panel that is worked at, and in it the row of the field.
/// @param form    the main window, or the dialog whose window is active
/// @param control name of the control with the focus, empty without one
[[nodiscard]] qt::ManualPlace manualPlace(const frmCalc& main, const platform::Form& form,
                                          const std::string& control);

}  // namespace mero::forms
