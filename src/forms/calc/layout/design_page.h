// SPDX-License-Identifier: MIT
/// The tab "Výpočet": the choice of the type and the six result panels.
#pragma once

#include <QWidget>

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

void buildDesignPage(qt::WidgetKit& kit, frmCalc& form, QWidget& page);

}  // namespace mero::forms
