// SPDX-License-Identifier: MIT
/// Do the results that are shown belong to the inputs that are shown?
#pragma once

#include <cstdint>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

enum class ResultState : std::uint8_t {
    None,     ///< no results
    Current,  ///< they belong to the inputs
    Stale,    ///< the inputs changed since the calculation, or it did not come to its end
};

/// Inputs and results of the type as they are now.
[[nodiscard]] CalculationState calculationState(const frmCalc& form, FacilityType type);

/// Of the results in the boxes of the type's panel.
[[nodiscard]] ResultState resultState(const frmCalc& form, FacilityType type);

/// Of the results in the report, which prints the stored numbers: all types share them, so another type's
/// calculation replaces them.
[[nodiscard]] ResultState reportState(const frmCalc& form);

}  // namespace mero::forms
