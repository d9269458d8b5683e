// SPDX-License-Identifier: MIT
/// Which field a message is about, so that the window can put the focus there.
#pragma once

#include "design/verdict_id.h"
#include "forms/calc/frm_calc.h"

namespace mero::forms {

/// The control in which the user mends what the message says. Null when the message is about none, or about
/// none that can be reached now.
[[nodiscard]] platform::Control* concernedControl(frmCalc& form, design::VerdictId id);

}  // namespace mero::forms
