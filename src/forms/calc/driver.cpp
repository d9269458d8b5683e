// SPDX-License-Identifier: MIT
/// The calculation's driver: re-selecting the type after a common input changed, clearing results, and the
/// calculate command with its input checks.
#include "forms/calc/frm_calc.h"
#include "forms/calc/input_checks.h"

namespace mero::forms {

void frmCalc::RebuildCalc() {
    optSelType[TypeGroup].setSelected(true);
    hideResultPanels();
    // The type is the one that the re-run group choice left, not the one that was shown before.
    cboSelType.selectText(values_->TypyZasakovani[static_cast<std::size_t>(SelectedType)]);
}

void frmCalc::ClearTypeResults() {
    switch (SelectedType) {
        case kSurface:
            txtVsakPlocha[kSurface].setText("0");
            CalcInfiltArea();
            break;
        case kSwale:
            txtVsakPlocha[kSwale].setText("");
            txtObjAkum[kSwale].setText("");
            txtVyskaVzduti[kSwale].setText("");
            txtDobaPrazdneni[kSwale].setText("");
            optSelTypPudy2[SoilVariant].setSelected(true);
            break;
        case kSwaleTrench:
            txtVsakPlocha[kSwaleTrench].setText("");
            txtObjAkum[kSwaleTrench].setText("");
            txtDelkaRyhy[kSwaleTrench].setText("");
            txtSirkaPrulehu[kSwaleTrench].setText("");
            txtHloubkaPrulehu[kSwaleTrench].setText("");
            txtDobaPrazdneni[kSwaleTrench].setText("");
            optSelTypPudy3[SoilVariant].setSelected(true);
            break;
        case kTrench:
            txtVsakPlocha[kTrench].setText("");
            txtObjAkum[kTrench].setText("");
            txtDelkaRyhy[kTrench].setText("");
            break;
        case kShaft:
            optSelTypPudy5[SoilVariant].setSelected(false);
            optSelTypPudy5[SoilVariant].setSelected(true);
            break;
        default:
            break;
    }
}

void frmCalc::cmdCalcul_Click(int Index) {
    if (Index < kSwaleTrench || Index > kTank) {
        return;
    }
    const bool sand_layer = optSelTypPudy5[1].selected();
    const std::string problems = failedChecks(Index, *values_, sand_layer);
    if (!problems.empty()) {
        error(problems);
        return;
    }
    if (Index == kShaft) {
        if (values_->D_a <= values_->D_i) {
            error("Vnější průměr šachty je menší než vnitřní průměr.");
            return;
        }
        CalcInfiltArea();
    }
    CalcDesign();
}

}  // namespace mero::forms
