// SPDX-License-Identifier: MIT
/// The tab "Základní informace": project, hydraulic inputs, selection guide, clock, links.
#pragma once

#include <QWidget>

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

void buildInputsPage(qt::WidgetKit& kit, frmCalc& form, QWidget& page);

}  // namespace mero::forms
