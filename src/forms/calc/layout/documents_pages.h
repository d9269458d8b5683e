// SPDX-License-Identifier: MIT
/// The tabs "Popis technologie" and "Výsledky": the two browser views and the report's buttons.
#pragma once

#include <QWidget>

#include "forms/calc/frm_calc.h"
#include "qt/document_view.h"
#include "qt/widget_kit.h"

namespace mero::forms {

void buildTechnologyPage(qt::WidgetKit& kit, frmCalcControls& form, const qt::DocumentServices& services,
                         QWidget& page);
void buildResultsPage(qt::WidgetKit& kit, frmCalc& form, const qt::DocumentServices& services, QWidget& page);

}  // namespace mero::forms
