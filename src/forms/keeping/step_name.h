// SPDX-License-Identifier: MIT
/// What a step of a user is called in the menu: "Zpět: Šířka rýhy (střední)".
#pragma once

#include <string>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

/// The name of the step that a user took at the control: the caption of a field, the choice that was made,
/// the title of a dialog. Captions come from the tables of inputs and results.
/// @param control of any form of the program
[[nodiscard]] std::string stepName(const frmCalc& window, const platform::Control& control);

}  // namespace mero::forms
