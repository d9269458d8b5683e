// SPDX-License-Identifier: MIT
/// Tooltips of the inputs: meaning, unit, usual values, default.
#pragma once

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

/// Of the fields of the first tab that are built.
void giveSiteTips(const qt::WidgetKit& kit, const frmCalc& form);
/// Of the fields of a panel that is built.
void givePanelTips(const qt::WidgetKit& kit, const frmCalc& form, FacilityType type);

}  // namespace mero::forms
