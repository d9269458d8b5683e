// SPDX-License-Identifier: MIT
/// The main window's field rules that do more than store a number.
/// The derived inflow, the filtration coefficient, the counter.
#include <algorithm>

#include "calc/inflow.h"
#include "design/quantity.h"
#include "forms/calc/field_rules.h"
#include "forms/calc/frm_calc.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {

void frmCalc::showInflow() {
    values_->txtOdtokDoVsak = calc::inflow(values_->RedukovanaPlocha, values_->VybranaIntenzita);
    txtOdtokDoVsak.setText(
        design::boxText(design::Quantity::Inflow, FacilityType::None, values_->txtOdtokDoVsak));
}

void frmCalc::txtOdvodNepPlocha_Change() {
    // A new area is no inflow before there is a design rain.
    if (values_->VybranaIntenzita > 0) {
        showInflow();
    }
    RebuildCalc();
}

void frmCalc::txtSelIntDeste_Change() {
    showInflow();
    RebuildCalc();
}

void frmCalc::txtSoucFiltrace_Change() {
    const bool empty = txtSoucFiltrace.text().empty();
    storeFiltration(txtSoucFiltrace, values_->txtSoucFiltrace);
    if (!empty) {
        RebuildCalc();
    }
}

void frmCalc::txtSoucFiltrace_LostFocus() {
    formatFiltration(txtSoucFiltrace, values_->txtSoucFiltrace);
}

void frmCalc::txtSoucFiltrPruleh_LostFocus(int Index) {
    formatFiltration(txtSoucFiltrPruleh[Index], values_->txtSoucFiltrPruleh);
}

void frmCalc::updSacht_Change(platform::UpDown::Direction direction) {
    constexpr int kFewest = 1;
    constexpr int kMost = 100;
    const int step = direction == platform::UpDown::Direction::Up ? 1 : -1;
    const int count = std::clamp(values_->txtSachtyCount + step, kFewest, kMost);
    txtSachtyCount.setText(numbers::general(count));
}

}  // namespace mero::forms
