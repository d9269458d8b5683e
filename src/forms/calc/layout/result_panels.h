// SPDX-License-Identifier: MIT
/// The six result panels: inputs on the left, results on the right, the calculation's button below.
#pragma once

#include <QWidget>

#include "forms/calc/frm_calc.h"
#include "qt/field_grid.h"
#include "qt/widget_kit.h"

namespace mero::forms {

/// Builds the panel of an infiltration type, 1 to 6.
void buildResultPanel(qt::WidgetKit& kit, frmCalc& form, int type, QWidget& panel);

/// A group of options in one row.
QWidget& buildOptions(qt::WidgetKit& kit, const platform::ControlArray<platform::OptionButton>& options,
                      QWidget& parent);

/// What of a panel is filled by its type: the two boxes of inputs and results.
struct PanelGrids {
    qt::FieldGrid& inputs;
    qt::FieldGrid& results;
};

void fillShaftPanel(qt::WidgetKit& kit, frmCalcControls& form, const PanelGrids& grids);
void fillTankPanel(qt::WidgetKit& kit, frmCalcControls& form, const PanelGrids& grids);

/// Fields that several panels have.
void addSafetyFactor(frmCalcControls& form, int type, qt::FieldGrid& inputs);

}  // namespace mero::forms
