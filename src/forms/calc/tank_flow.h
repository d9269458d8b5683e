// SPDX-License-Identifier: MIT
/// The tank's infiltration flow in litres: its box shows cubic metres with two decimals, which says little of
/// the flows that are usual.
#pragma once

#include <string>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

/// The stored flow that the box shows, as "= 10.55 l/s"; empty without a result.
[[nodiscard]] std::string tankFlowInLitres(const frmCalc& form);

}  // namespace mero::forms
