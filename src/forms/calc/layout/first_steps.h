// SPDX-License-Identifier: MIT
/// What the design tab says while no type is chosen.
#pragma once

#include <QWidget>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

/// A text in place of the panels: what is still missing, and how a type is chosen.
QWidget& makeFirstSteps(frmCalc& form, QWidget& parent);

}  // namespace mero::forms
