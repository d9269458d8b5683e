// SPDX-License-Identifier: MIT
/// The six result panels: inputs on the left, results on the right, the calculate button below.
#pragma once

#include <QWidget>

#include "forms/calc/frm_calc.h"
#include "qt/widget_kit.h"

namespace mero::forms {

/// Builds the panel of an infiltration type from the tables of inputs and results.
void buildResultPanel(qt::WidgetKit& kit, frmCalc& form, FacilityType type, QWidget& panel);

/// A group of options in one row.
QWidget& buildOptions(qt::WidgetKit& kit, const platform::ControlArray<platform::OptionButton>& options,
                      QWidget& parent);

}  // namespace mero::forms
