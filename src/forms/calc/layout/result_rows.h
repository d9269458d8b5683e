// SPDX-License-Identifier: MIT
/// The results of a panel as a table to be copied.
#pragma once

#include "forms/calc/frm_calc.h"
#include "qt/copy_menu.h"

namespace mero::forms {

/// The type's name, then caption, text and unit of each result box, as they are shown.
[[nodiscard]] qt::CopiedRows resultRows(const frmCalc& form, FacilityType type);

}  // namespace mero::forms
