// SPDX-License-Identifier: MIT
/// Shows the remarks below the fields of a page.
#pragma once

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

void showSiteRemarks(qt::WidgetKit& kit, frmCalc& form, QWidget& page);
void showPanelRemarks(qt::WidgetKit& kit, frmCalc& form, FacilityType type, QWidget& panel);

}  // namespace mero::forms
