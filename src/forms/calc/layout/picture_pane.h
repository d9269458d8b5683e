// SPDX-License-Identifier: MIT
/// The pictures of a result panel: the section through the facility and the balance over the nine rains.
#pragma once

#include <QWidget>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

/// Both pictures of the panel of that type, 1 to 6. They follow every change of the window and its dialogs.
QWidget& makePicturePane(frmCalc& form, FacilityType type, QWidget& parent);

}  // namespace mero::forms
