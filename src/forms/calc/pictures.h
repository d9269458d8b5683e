// SPDX-License-Identifier: MIT
/// What the pictures beside the results show, out of the window's fields and the shared values.
/// They only read. Results are those that the panel's fields show, so a picture never contradicts them.
#pragma once

#include "forms/calc/frm_calc.h"
#include "picture/chart.h"
#include "picture/section.h"

namespace mero::forms {

/// Section of the facility on the panel of that type, 1 to 6.
[[nodiscard]] picture::Section facilitySection(const frmCalc& form, FacilityType type);

/// Balance of that type over the nine rains.
[[nodiscard]] picture::Chart balanceChart(const frmCalc& form, FacilityType type);

}  // namespace mero::forms
