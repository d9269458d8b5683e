// SPDX-License-Identifier: MIT
/// The user's hands. An action that a user could not perform is left out.
#include "forms/keeping/enter_project.h"

#include <algorithm>

#include "design/shaft_catalogue.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {

using design::Facility;
using design::Input;

template <typename Control, typename Action>
void ProjectEntry::act(Control& control, Action action) {
    if (!control.onScreen() || !control.reachable()) {
        unreachable_.push_back(control.name());
        return;
    }
    program_->enter([&] { action(control); });
}

template <typename Control>
void ProjectEntry::click(Control& control) {
    act(control, [](auto& it) { it.userClick(); });
}

void ProjectEntry::fill(platform::TextBox& box, const std::string& text) {
    act(box, [&](auto& it) { it.userEdit(text); });
}

void ProjectEntry::fill(platform::TextBox& box, float number) {
    fill(box, numbers::general(number));
}

void ProjectEntry::leave(platform::TextBox& box) {
    act(box, [](auto& it) { it.userLostFocus(); });
}

void ProjectEntry::cell(platform::Grid& grid, int row, int column) {
    act(grid, [&](auto& it) { it.userClick({row, column}); });
}

void ProjectEntry::tab(int position) {
    act(program_->window().SSTab1, [&](auto& it) { it.userSelect(position); });
}

void ProjectEntry::enter(const project::Project& project) {
    enterSite(project);
    enterFacility(project.inputs.facility);
}

void ProjectEntry::enterSite(const project::Project& project) {
    frmCalc& form = program_->window();
    tab(kTabInputs);
    enterTexts(project.texts);
    if (wants(Input::Groundwater)) {
        fill(form.txtHPV, project.inputs.groundwater_depth_m);
    }
    enterRain(project.inputs.rain);
    enterAreas(project);
    if (wants(Input::Filtration)) {
        fill(form.txtSoucFiltrace, project.inputs.filtration_m_s);
        leave(form.txtSoucFiltrace);
    }
}

void ProjectEntry::enterTexts(const project::Texts& texts) {
    frmCalc& form = program_->window();
    fill(form.txtProjName, texts.txtProjName);
    fill(form.txtProjektant, texts.txtProjektant);
    fill(form.txtMistoAkce, texts.txtMistoAkce);
    fill(form.txtInvestor, texts.txtInvestor);
    fill(form.txtDetails, texts.txtDetails);
    fill(form.txtTypPudyPodlozi, texts.txtTypPudyPodlozi);
}

void ProjectEntry::enterRain(const project::RainChoice& rain) {
    frmIntDialog& dialog = program_->window().intDialog;
    const bool own = wanted_("rain.intensities_l_s_ha");
    if (!own && !wants(Input::Station) && !wants(Input::Periodicity)) {
        return;
    }
    click(program_->window().cmdEdit[0]);
    if (rain.station > 0) {
        act(dialog.cboSelStanice, [&](auto& it) { it.userSelect(rain.station); });
    } else if (own) {
        enterRainTable(rain);
    }
    if (wants(Input::Periodicity)) {
        act(dialog.cboSelPeriod, [&](auto& it) { it.userSelect(rain.periodicity); });
    }
    for (int row = 1; rain.picks_row && row <= data::kDurationCount; ++row) {
        if (rain.durations_min[static_cast<std::size_t>(row) - 1] == rain.design_duration_min) {
            cell(dialog.fgIntDeste, row, 2);
            break;
        }
    }
    if (dialog.cmdOK.enabled()) {
        click(dialog.cmdOK);
    }
    if (dialog.visible()) {
        program_->enter([&] { dialog.userCloses(); });
    }
}

void ProjectEntry::enterRainTable(const project::RainChoice& rain) {
    frmIntDialog& dialog = program_->window().intDialog;
    for (int row = 1; row <= data::kDurationCount; ++row) {
        const auto k = static_cast<std::size_t>(row) - 1;
        cell(dialog.fgIntDeste, row, 0);
        fill(dialog.txtSChange, rain.durations_min[k]);
        cell(dialog.fgIntDeste, row, 1);
        fill(dialog.txtSChange, rain.intensities_l_s_ha[k]);
    }
}

void ProjectEntry::enterAreas(const project::Project& project) {
    frmDialog& dialog = program_->window().areaDialog;
    if (project.inputs.areas.empty()) {
        return;
    }
    click(program_->window().cmdEdit[1]);
    for (std::size_t i = 0; i < project.inputs.areas.size(); ++i) {
        fill(dialog.txtSoucinitel, project.inputs.areas[i].runoff_coefficient);
        fill(dialog.txtPlocha, project.inputs.areas[i].area_m2);
        click(dialog.cmdZapsat);
        if (!project.texts.surfaces[i].empty()) {
            cell(dialog.fgZapisTab, static_cast<int>(i) + 1, 3);
            fill(dialog.txtSChange, project.texts.surfaces[i]);
        }
    }
    click(dialog.OKButton);
}

void ProjectEntry::chooseType(FacilityType type) {
    frmCalc& form = program_->window();
    tab(kTabDesign);
    if (type == FacilityType::Tank) {
        click(form.optSelType[1]);
        return;
    }
    click(form.optSelType[0]);
    act(form.cboSelType, [](auto& list) { list.userGotFocus(); });
    act(form.cboSelType, [&](auto& list) { list.userSelect(static_cast<int>(type)); });
}

void ProjectEntry::enterFacility(const Facility& facility) {
    frmCalc& form = program_->window();
    chooseType(facility.type);
    // Where the choice was refused there is no panel to fill in.
    if (!form.picResults[facility.type].onScreen()) {
        return;
    }
    switch (facility.type) {
        case FacilityType::None:
            break;
        case FacilityType::Surface:
            enterNumbers(facility);
            enterSafetyFactor(facility);
            break;
        case FacilityType::Swale:
            chooseSoil(form.optSelTypPudy2, facility.soil_option);
            enterNumbers(facility);
            enterSafetyFactor(facility);
            break;
        case FacilityType::SwaleTrench:
            chooseSoil(form.optSelTypPudy3, facility.soil_option);
            enterNumbers(facility);
            enterSafetyFactor(facility);
            enterPipes(facility.overflow, facility.type);
            break;
        case FacilityType::Trench:
            enterNumbers(facility);
            enterSafetyFactor(facility);
            enterPipes(facility.drain, facility.type);
            break;
        case FacilityType::Shaft:
            enterShaft(facility);
            break;
        case FacilityType::Tank:
            enterNumbers(facility);
            if (facility.upstream_settling != form.chkPredUsaz.checked()) {
                click(form.chkPredUsaz);
            }
            enterSafetyFactor(facility);
            break;
    }
}

/// The option that is selected already is not clicked again.
void ProjectEntry::chooseSoil(const platform::ControlArray<platform::OptionButton>& options, int option) {
    if (!options[option].selected()) {
        click(options[option]);
    }
}

/// The plain numbers of the panel, by the table, except the safety factor.
void ProjectEntry::enterNumbers(const Facility& facility) {
    for (const design::PanelInput& row : design::panelInputs(facility.type)) {
        const design::InputInfo& input = info(row.input);
        if (input.stored != nullptr && !design::isOfSubPanel(row.input) && row.input != Input::SafetyFactor &&
            wants(row.input)) {
            platform::TextBox& box =
                program_->window().textBox(design::controlName(input.box, facility.type));
            fill(box, input.given(facility));
            leave(box);
        }
    }
}

void ProjectEntry::enterSafetyFactor(const Facility& facility) {
    if (wants(Input::SafetyFactor)) {
        fill(program_->window().txtSoucBezp[facility.type], facility.txtSoucBezp);
    }
}

void ProjectEntry::enterPipes(const design::Pipes& pipes, FacilityType type) {
    frmCalc& form = program_->window();
    if (!pipes.given) {
        return;
    }
    if (!form.chkSelPretok[type].checked()) {
        click(form.chkSelPretok[type]);
    }
    const bool drain = type == FacilityType::Trench;
    const auto enter_wanted = [this](Input input, platform::TextBox& box, float number) {
        if (wants(input)) {
            fill(box, number);
        }
    };
    enter_wanted(drain ? Input::DrainPipeCount : Input::OverflowPipeCount, form.txtPocetPotrubi[type],
                 pipes.txtPocetPotrubi);
    enter_wanted(drain ? Input::DrainOuterDiameter : Input::OverflowOuterDiameter,
                 form.txtPrumTroubVnej[type], pipes.txtPrumTroubVnej);
    enter_wanted(drain ? Input::DrainInnerDiameter : Input::OverflowInnerDiameter,
                 form.txtPrumTroubVnit[type], pipes.txtPrumTroubVnit);
    if (drain) {
        enter_wanted(Input::OutletArea, form.txtVystupPlocha[type], pipes.txtVystupPlocha);
        enter_wanted(Input::OutletVelocity, form.txtVystupRychlost[type], pipes.txtVystupRychlost);
    } else {
        enter_wanted(Input::ThrottledOutflow, form.txtSpecDrenOdtok[type], pipes.txtSpecDrenOdtok);
    }
    click(form.cmdOK[type]);
}

void ProjectEntry::enterShaft(const Facility& facility) {
    frmCalc& form = program_->window();
    const auto enter_wanted = [this](Input input, platform::TextBox& box, float number) {
        if (wants(input)) {
            fill(box, number);
        }
    };
    const auto all = design::shaftCatalogue();
    const bool ring = facility.catalogue_row >= 0;
    const data::ShaftShape shape =
        ring ? all[static_cast<std::size_t>(facility.catalogue_row)].shape : facility.shape;
    if (ring || wants(Input::Shape)) {
        click(form.optSelTypSachty[shape]);
    }
    if (facility.sand_layer != form.optSelTypPudy5[1].selected()) {
        click(form.optSelTypPudy5[facility.sand_layer ? 1 : 0]);
    }
    enterShaftDimensions(facility, shape);
    enter_wanted(Input::SeepagePath, form.txtMinPrusakDraha, facility.txtMinPrusakDraha);
    enter_wanted(Input::InletDepth, form.txtNezamrzHlPritok, facility.txtNezamrzHlPritok);
    enter_wanted(Input::FilterLayer, form.txtVyskaFiltrVrstvy, facility.txtVyskaFiltrVrstvy);
    if (facility.sand_layer) {
        enter_wanted(Input::SandLayer, form.txtVyskaPiskVrstvy, facility.txtVyskaPiskVrstvy);
    }
    enterSafetyFactor(facility);
}

void ProjectEntry::enterShaftDimensions(const Facility& facility, data::ShaftShape shape) {
    frmCalc& form = program_->window();
    if (wants(Input::ShaftCount)) {
        fill(form.txtSachtyCount, static_cast<float>(facility.txtSachtyCount));
    }
    if (facility.catalogue_row >= 0) {
        const auto before = design::shaftCatalogue(shape).data() - design::shaftCatalogue().data();
        act(form.cboTypSachty,
            [&](auto& list) { list.userSelect(facility.catalogue_row - static_cast<int>(before)); });
        return;
    }
    const bool round = shape == data::ShaftShape::Round;
    if (wants(round ? Input::InnerDiameter : Input::InnerWidth)) {
        fill(form.txtPrumerSachtyVnit, round ? facility.inner_diameter_m : facility.inner_width_m);
    }
    if (!round && wants(Input::InnerLength)) {
        fill(form.txtPrumerSachtyVnej, facility.txtPrumerSachtyVnej);
    }
    if (wants(Input::WallThickness)) {
        fill(form.txtTloustkaSteny, facility.txtTloustkaSteny);
    }
}

}  // namespace mero::forms
