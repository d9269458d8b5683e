// SPDX-License-Identifier: MIT
/// The fields of each message. A list of failed input checks leads to the first of them.
#include "forms/calc/layout/concerned_field.h"

#include <algorithm>
#include <vector>

#include "design/input.h"

namespace mero::forms {
namespace {

using design::Input;
using design::VerdictId;
using platform::Control;
using Fields = std::vector<Control*>;

/// The box of the input on the panel that is shown.
Fields boxOf(frmCalc& form, Input input) {
    for (const FacilityType type : data::kFacilityTypes) {
        const auto panel = design::panelInputs(type);
        const bool on_panel = std::ranges::find(panel, input, &design::PanelInput::input) != panel.end();
        if (on_panel && form.picResults[type].onScreen()) {
            return {form.find(design::controlName(info(input).box, type))};
        }
    }
    return {};
}

/// In the order in which they are tried: the first that can be reached counts.
Fields fieldsOf(frmCalc& form, VerdictId id) {
    Fields area{&form.cmdEdit[1]};
    Fields shaft_size{&form.txtPrumerSachtyVnit, &form.cboTypSachty, &form.txtSachtyCount};
    Fields shaft_outside{&form.txtPrumerSachtyVnej, &form.txtTloustkaSteny, &form.cboTypSachty};
    switch (id) {
        case VerdictId::RainIntensitiesMissing:
            return {&form.intDialog.cboSelStanice};
        case VerdictId::RunoffCoefficientMissing:
            return {&form.areaDialog.txtSoucinitel};
        case VerdictId::PartialAreaMissing:
            return {&form.areaDialog.txtPlocha};
        case VerdictId::DrainedAreaMissing:
        case VerdictId::InfiltrationAreaMissing:
            return area;
        case VerdictId::FiltrationMissing:
            return {&form.txtSoucFiltrace};
        case VerdictId::DesignRainMissing:
            return {&form.cmdEdit[0]};
        case VerdictId::TechnologyNotChosen:
            return {&form.cboSelType, &form.optSelType[0]};
        case VerdictId::SwaleFiltrationNotPositive:
            return boxOf(form, Input::SwaleFiltration);
        case VerdictId::SafetyFactorNotPositive:
            return boxOf(form, Input::SafetyFactor);
        case VerdictId::FillPorosityNotPositive:
            return boxOf(form, Input::FillPorosity);
        case VerdictId::TrenchHeightNotPositive:
            return boxOf(form, Input::TrenchHeight);
        case VerdictId::TrenchWidthNotPositive:
        case VerdictId::SwaleTrenchAreaInsufficient:
            return boxOf(form, Input::TrenchWidth);
        case VerdictId::DrainOutflowNotMet:
            return {&form.txtVystupPlocha[FacilityType::Trench], &form.cmdEdit[FacilityType::Trench]};
        case VerdictId::InletDepthNotPositive:
            return boxOf(form, Input::InletDepth);
        case VerdictId::FilterLayerNotPositive:
        case VerdictId::ShaftBottomTooClose:
            return boxOf(form, Input::FilterLayer);
        case VerdictId::SeepagePathNotPositive:
            return boxOf(form, Input::SeepagePath);
        case VerdictId::SandLayerNotPositive:
            return boxOf(form, Input::SandLayer);
        case VerdictId::InnerDiameterNotPositive:
        case VerdictId::ShaftGroundwaterTooHigh:
        case VerdictId::ShaftFilterTooPermeable:
            return shaft_size;
        case VerdictId::OuterDiameterNotPositive:
        case VerdictId::ShaftOuterDiameterTooSmall:
            return shaft_outside;
        case VerdictId::SpecificInfiltrationNotPositive:
        case VerdictId::TankInfiltrationExceeded:
            return boxOf(form, Input::SpecificInfiltration);
        case VerdictId::BottomLengthNotPositive:
        case VerdictId::TankVolumeTooSmall:
            return boxOf(form, Input::BottomLength);
        case VerdictId::BottomWidthNotPositive:
            return boxOf(form, Input::BottomWidth);
        case VerdictId::TankDepthNotPositive:
            return boxOf(form, Input::TankDepth);
        case VerdictId::SideSlopeNegative:
            return boxOf(form, Input::SideSlope);
        // Nothing to mend, or no field in which to do it.
        case VerdictId::SwaleTrenchAreaSufficient:
        case VerdictId::DrainOutflowMet:
        case VerdictId::ShaftFilterSufficient:
        case VerdictId::TankVolumeSufficient:
        case VerdictId::TankInfiltrationProven:
        case VerdictId::ErrorInvalidCall:
        case VerdictId::ErrorOverflow:
        case VerdictId::ErrorSubscript:
        case VerdictId::ErrorDivisionByZero:
            break;
    }
    return {};
}

}  // namespace

Control* concernedControl(frmCalc& form, design::VerdictId id) {
    const Fields fields = fieldsOf(form, id);
    const auto found = std::ranges::find_if(fields, [](const Control* field) {
        return field != nullptr && field->onScreen() && field->reachable();
    });
    return found == fields.end() ? nullptr : *found;
}

}  // namespace mero::forms
