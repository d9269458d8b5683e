// SPDX-License-Identifier: MIT
/// The choice of the infiltration type: group, type list, panels, soil and shaft options, sub-panels.
/// Selecting by code runs the same handlers; the order of the steps decides what the window shows.
#include "forms/calc/frm_calc.h"

namespace mero::forms {
namespace {

constexpr int kCentralised = 1;
/// The tank is the only entry of the centralised list and the sixth type.
constexpr int kCentralisedOffset = kTank;

/// Tops of the sub-panels in twips when their box is ticked.
constexpr int kOverflowTop = 3000;
constexpr int kDrainTop = 2000;

}  // namespace

void frmCalc::hideResultPanels() {
    picResults.forEach([](int, Panel& panel) { panel.hide(); });
}

bool frmCalc::refusesMissingInputs() {
    if (!(values_->RedukovanaPlocha > 0)) {
        error("Zadejte nepropustnou odvodňovanou plochu");
        return true;
    }
    if (!(values_->txtSoucFiltrace > 0)) {
        error("Zadejte součinitel filtrace podloží");
        txtSoucFiltrace.setFocus();
        return true;
    }
    return false;
}

void frmCalc::optSelType_Click(int Index) {
    cboSelType.clear();
    SelectedType = kNoType;
    CalcInfiltArea();
    if (Index == kCentralised) {
        cboSelType.add(values_->TypyZasakovani[kTank]);
        // Nothing is selected yet (position -1); the selection below corrects the number.
        SelectedType = cboSelType.position() + kCentralisedOffset;
        if (refusesMissingInputs()) {
            return;
        }
        ClearTypeResults();
    } else {
        for (std::size_t type = kNoType; type <= kShaft; ++type) {
            cboSelType.add(values_->TypyZasakovani[type]);
        }
    }
    cboSelType.setEnabled(true);
    TypeGroup = Index;
    cboSelType.select(0);
}

void frmCalc::cboSelType_Click() {
    const int position = cboSelType.position();
    const bool decentralised = TypeGroup != kCentralised;
    SelectedType = decentralised ? position : position + kCentralisedOffset;
    hideResultPanels();
    if (decentralised) {
        if (position < 1) {
            return;
        }
        if (SelectedType == kSwale) {
            optSelTypPudy2[0].setSelected(false);
        } else if (SelectedType == kSwaleTrench) {
            optSelTypPudy3[0].setSelected(false);
        }
    }
    Panel& panel = picResults[SelectedType];
    panel.moveTo(picResults[kSurface].left(), picResults[kSurface].top());
    panel.show();
    ClearTypeResults();
}

void frmCalc::cboSelType_GotFocus() {
    refusesMissingInputs();
}

void frmCalc::optSelTypPudy2_Click(int Index) {
    SoilVariant = Index;
    CalcInfiltArea();
}

void frmCalc::optSelTypPudy3_Click(int Index) {
    SoilVariant = Index;
    CalcInfiltArea();
}

void frmCalc::optSelTypPudy5_Click(int Index) {
    SoilVariant = Index;
    const bool sand_layer = Index == 1;
    txtVyskaPiskVrstvy.setEnabled(sand_layer);
    txtVyskaPiskVrstvy.setGreyed(!sand_layer);
}

void frmCalc::chkSelPretok_Click(int Index) {
    ClearTypeResults();
    if (Index != kSwaleTrench && Index != kTrench) {
        return;
    }
    if (!chkSelPretok[Index].checked()) {
        cmdEdit[Index].setEnabled(false);
        picPretokSkrOdtok[Index].hide();
        return;
    }
    picPretokSkrOdtok[Index].moveTo(0, Index == kSwaleTrench ? kOverflowTop : kDrainTop);
    picPretokSkrOdtok[Index].show();
    cmdEdit[Index].setEnabled(true);
}

}  // namespace mero::forms
