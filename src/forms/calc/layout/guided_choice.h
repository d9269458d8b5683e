// SPDX-License-Identifier: MIT
/// The choice of a type by a click on its region of the selection guide.
#pragma once

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

/// Goes to the design tab and chooses the type by the events of a person: the group, then the list. What a
/// guard refuses is told, and the choice ends there.
void chooseByGuide(const qt::WidgetKit& kit, frmCalc& form, FacilityType type);

}  // namespace mero::forms
