// SPDX-License-Identifier: MIT
/// Which field a message is about, so that the window can lead its user there.
#pragma once

#include <string_view>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

/// The control in which the user mends what the message says. Null when the message is about none, or about
/// none that can be reached now.
[[nodiscard]] platform::Control* concernedControl(frmCalc& form, std::string_view message);

}  // namespace mero::forms
