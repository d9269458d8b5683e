// SPDX-License-Identifier: MIT
/// The choice of the infiltration type: group, type list, panels, soil and shaft options, sub-panels.
/// Selecting by code runs the same handlers; the order of the steps decides what the window shows.
#include "design/checks.h"
#include "forms/calc/frm_calc.h"

namespace mero::forms {
namespace {

constexpr int kCentralised = 1;
/// The tank is the only entry of the centralised list and the sixth type.
constexpr int kCentralisedOffset = static_cast<int>(FacilityType::Tank);

/// Tops of the sub-panels in twips when their box is ticked.
constexpr int kOverflowTop = 3000;
constexpr int kDrainTop = 2000;

}  // namespace

void frmCalc::hideResultPanels() {
    picResults.forEach([](int, Panel& panel) { panel.hide(); });
}

bool frmCalc::refusesMissingInputs() {
    const auto missing = design::checks::missingInput(*values_);
    if (!missing) {
        return false;
    }
    WindowSink(*this, FacilityType::None).tell(*missing);
    if (*missing == design::VerdictId::FiltrationMissing) {
        txtSoucFiltrace.setFocus();
    }
    return true;
}

void frmCalc::optSelType_Click(int Index) {
    cboSelType.clear();
    SelectedType = FacilityType::None;
    CalcInfiltArea();
    if (Index == kCentralised) {
        cboSelType.add(values_->TypyZasakovani[index(FacilityType::Tank)]);
        // Nothing is selected yet (position -1); the selection below corrects the number.
        SelectedType = static_cast<FacilityType>(cboSelType.position() + kCentralisedOffset);
        if (refusesMissingInputs()) {
            return;
        }
        ClearTypeResults();
    } else {
        for (std::size_t type = 0; type <= index(FacilityType::Shaft); ++type) {
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
    SelectedType = static_cast<FacilityType>(decentralised ? position : position + kCentralisedOffset);
    hideResultPanels();
    if (decentralised) {
        if (position < 1) {
            return;
        }
        if (SelectedType == FacilityType::Swale) {
            optSelTypPudy2[0].setSelected(false);
        } else if (SelectedType == FacilityType::SwaleTrench) {
            optSelTypPudy3[0].setSelected(false);
        }
    }
    Panel& panel = picResults[SelectedType];
    panel.moveTo(picResults[FacilityType::Surface].left(), picResults[FacilityType::Surface].top());
    panel.show();
    ClearTypeResults();
}

void frmCalc::optSelTypPudy2_Click(int Index) {
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
    const auto type = static_cast<FacilityType>(Index);
    if (type != FacilityType::SwaleTrench && type != FacilityType::Trench) {
        return;
    }
    if (!chkSelPretok[Index].checked()) {
        cmdEdit[Index].setEnabled(false);
        picPretokSkrOdtok[Index].hide();
        return;
    }
    picPretokSkrOdtok[Index].moveTo(0, type == FacilityType::SwaleTrench ? kOverflowTop : kDrainTop);
    picPretokSkrOdtok[Index].show();
    cmdEdit[Index].setEnabled(true);
}

}  // namespace mero::forms
