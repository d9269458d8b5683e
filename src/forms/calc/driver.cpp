// SPDX-License-Identifier: MIT
/// The calculation's driver: re-selects the type after a common input changed, clears results, and runs the
/// design procedures of the type over the window.
#include "design/procedures.h"
#include "forms/calc/frm_calc.h"

namespace mero::forms {

void frmCalc::RebuildCalc() {
    optSelType[TypeGroup].setSelected(true);
    hideResultPanels();
    // The type is the one that the re-run group choice left, not the one that was shown before.
    cboSelType.selectText(values_->TypyZasakovani[index(SelectedType)]);
}

void frmCalc::ClearTypeResults() {
    WindowSink sink(*this, SelectedType);
    data::withType(SelectedType, [&]<FacilityType type>() { design::clearBoxes<type>(sink); });
    switch (SelectedType) {
        case FacilityType::Surface:
            CalcInfiltArea();
            break;
        case FacilityType::Swale:
            optSelTypPudy2[SoilVariant].setSelected(true);
            break;
        case FacilityType::SwaleTrench:
            optSelTypPudy3[SoilVariant].setSelected(true);
            break;
        case FacilityType::Shaft:
            optSelTypPudy5[SoilVariant].setSelected(false);
            optSelTypPudy5[SoilVariant].setSelected(true);
            break;
        case FacilityType::None:
        case FacilityType::Trench:
        case FacilityType::Tank:
            break;
    }
}

void frmCalc::CalcInfiltArea() {
    WindowSink sink(*this, SelectedType);
    data::withType(SelectedType,
                   [&]<FacilityType type>() { design::calculateArea(design::OfType<type>(), sink); });
}

void frmCalc::CalcDesign() {
    WindowSink sink(*this, SelectedType);
    data::withType(SelectedType,
                   [&]<FacilityType type>() { design::calculateDesign(design::OfType<type>(), sink); });
}

void frmCalc::cmdCalcul_Click(int Index) {
    const auto index = static_cast<FacilityType>(Index);
    WindowSink sink(*this, index);
    const bool passed = data::withType(index, [&]<FacilityType type>() {
        return !design::checks::kChecks<type>.empty() &&
               design::checks::pass<type>(sink, optSelTypPudy5[1].selected());
    });
    if (!passed) {
        return;
    }
    if (index == FacilityType::Shaft) {
        CalcInfiltArea();
    }
    CalcDesign();
}

void frmCalc::cmdOK_Click(int Index) {
    const auto index = static_cast<FacilityType>(Index);
    WindowSink sink(*this, index);
    data::withType(index, [&]<FacilityType type>() { design::confirmPipes(design::OfType<type>(), sink); });
}

}  // namespace mero::forms
