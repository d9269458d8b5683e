// SPDX-License-Identifier: MIT
/// Writes the stored flow in another unit; the box shows it rounded.
#include "forms/calc/tank_flow.h"

#include "platform/numbers/number_text.h"

namespace mero::forms {

std::string tankFlowInLitres(const frmCalc& form) {
    constexpr int kDecimals = 2;
    constexpr double kLitresPerCubicMetre = 1000;
    if (form.txtVsakTok.text().empty()) {
        return {};
    }
    return "= " + numbers::fixed(kLitresPerCubicMetre * form.values().txtVsakTok, kDecimals) + " l/s";
}

}  // namespace mero::forms
