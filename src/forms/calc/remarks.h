// SPDX-License-Identifier: MIT
/// What is remarked beside a field: an implausible value, a stored value that is not the one shown, a panel
/// that is not confirmed. Remarks only read; nothing is refused.
#pragma once

#include <string>
#include <vector>

#include "forms/calc/frm_calc.h"

namespace mero::forms {

struct Remark {
    const platform::Control* beside = nullptr;
    std::string text;     ///< Czech
    bool caution = true;  ///< false for mere information
};

/// Of the first tab. A field has one remark at most.
[[nodiscard]] std::vector<Remark> siteRemarks(const frmCalc& form);
/// Of the type's panel and its sub-panel.
[[nodiscard]] std::vector<Remark> panelRemarks(const frmCalc& form, FacilityType type);

/// "Brno, p = 0.2, návrhový déšť nevybrán".
[[nodiscard]] std::string rainSummary(const frmCalc& form);

}  // namespace mero::forms
