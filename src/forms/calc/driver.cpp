// SPDX-License-Identifier: MIT
/// The calculation's driver: re-selects the type after a common input changed, clears results, and runs the
/// design procedures of the type over the window.
#include "design/procedures.h"
#include "forms/calc/frm_calc.h"
#include "forms/calc/result_state.h"

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

bool frmCalc::calculate(FacilityType type) {
    WindowSink sink(*this, type);
    const bool passed = data::withType(type, [&]<FacilityType of>() {
        return design::checks::pass<of>(sink, optSelTypPudy5[1].selected());
    });
    if (!passed) {
        return false;
    }
    if (type == FacilityType::Shaft) {
        CalcInfiltArea();
    }
    CalcDesign();
    return true;
}

void frmCalc::cmdCalcul_Click(int Index) {
    const auto type = static_cast<FacilityType>(Index);
    const bool has_checks =
        data::withType(type, []<FacilityType of>() { return !design::checks::kChecks<of>.empty(); });
    if (!has_checks) {
        return;
    }
    record_.begin(type);
    try {
        const bool calculated = calculate(type) && SelectedType == type;
        record_.end(type, calculated ? CalculationEnd::Done : CalculationEnd::Refused,
                    calculationState(*this, type));
    } catch (const RuntimeError& error) {
        record_.tell(type, {.id = design::verdictOf(error), .values = {}});
        record_.end(type, CalculationEnd::Failed, calculationState(*this, type));
        throw;
    }
}

void frmCalc::cmdOK_Click(int Index) {
    const auto index = static_cast<FacilityType>(Index);
    WindowSink sink(*this, index);
    data::withType(index, [&]<FacilityType type>() { design::confirmPipes(design::OfType<type>(), sink); });
}

}  // namespace mero::forms
