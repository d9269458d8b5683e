// SPDX-License-Identifier: MIT
/// The user's hands on the forms.
/// An action on a control that a user could not reach is a mistake of this test and throws.
#include "design/entered_window.h"

#include <stdexcept>
#include <variant>

#include "design/shaft_catalogue.h"
#include "forms/calc/report_data.h"
#include "platform/locale_settings.h"
#include "platform/numbers/number_text.h"
#include "report/html_report.h"
#include "support/recording_desk.h"

namespace mero::design::test {
namespace {

Message asDesigned(const platform::Message& message) {
    const Severity severity = message.icon == platform::MessageIcon::Information   ? Severity::Information
                              : message.icon == platform::MessageIcon::Exclamation ? Severity::Warning
                                                                                   : Severity::Refusal;
    return {message.text, severity, message.title == "Chyba", 0, *verdictId(message.id)};
}

Message asDesigned(const RuntimeError& error) {
    return {error.description(), Severity::Refusal, false, error.number(), verdictOf(error)};
}

}  // namespace

data::StationTable MadeUpRain::read(std::int16_t station_number, const std::string&) {
    data::StationTable table;
    table.columns = {"doba", "5", "2", "1", "05", "02", "01", station_number % 3 == 0 ? "004" : "005"};
    const std::size_t rows = station_number % 7 == 0 ? 6 : station_number % 5 == 0 ? 11 : 9;
    for (std::size_t row = 0; row < rows; ++row) {
        std::vector<data::StationTable::Value> values{static_cast<double>(row * 5 + 5)};
        for (int k = 0; k < data::kPeriodicityCount; ++k) {
            const double intensity = (90.5 + 40.25 * k + static_cast<double>(station_number)) /
                                     (0.4 + 0.6 * static_cast<double>(row));
            values.emplace_back(intensity);
        }
        if (station_number % 11 == 0 && row == 4) {
            values[3] = std::nullopt;
        }
        table.rows.push_back(values);
    }
    return table;
}

const platform::DateTime EnteredWindow::kMoment{2026, 11, 20, 14, 5, 9};

struct EnteredWindow::Parts {
    mero::test::RecordingDesk desk;
    platform::FrozenClock clock{kMoment};
    platform::ProgramLocale locale{".", " ", ","};
    MadeUpRain rain_database;
    forms::Program program{{desk, clock, locale, rain_database, "/nowhere"}};
    std::vector<Message> told;

    forms::frmCalc& window() { return program.window(); }

    template <typename Control, typename Action>
    void act(Control& control, Action action) {
        if (!control.onScreen() || !control.reachable()) {
            throw std::logic_error("a user cannot reach " + control.name());
        }
        program.enter([&] { action(control); });
    }
    void click(auto& control) {
        act(control, [](auto& it) { it.userClick(); });
    }
    void enter(platform::TextBox& box, const std::string& text) {
        act(box, [&](auto& it) { it.userEdit(text); });
    }
    void enter(platform::TextBox& box, float number) { enter(box, numbers::general(number)); }
    void leave(platform::TextBox& box) {
        act(box, [](auto& it) { it.userLostFocus(); });
    }
    void select(platform::DropList& list, int position) {
        act(list, [&](auto& it) { it.userSelect(position); });
    }
    void cell(platform::Grid& grid, int row, int column) {
        act(grid, [&](auto& it) { it.userClick({row, column}); });
    }
    void tab(int position) {
        act(window().SSTab1, [&](auto& it) { it.userSelect(position); });
    }

    void enterTexts(const project::Texts& texts) {
        forms::frmCalc& form = window();
        enter(form.txtProjName, texts.txtProjName);
        enter(form.txtProjektant, texts.txtProjektant);
        enter(form.txtMistoAkce, texts.txtMistoAkce);
        enter(form.txtInvestor, texts.txtInvestor);
        enter(form.txtDetails, texts.txtDetails);
        enter(form.txtTypPudyPodlozi, texts.txtTypPudyPodlozi);
    }
    void enterRain(const project::RainChoice& rain);
    void enterAreas(const project::Project& project);
    void chooseType(FacilityType type);
    void enterFacility(const Facility& facility);
    void enterSafetyFactor(const Facility& facility) {
        enter(window().txtSoucBezp[facility.type], facility.txtSoucBezp);
    }
    void enterPipes(const Pipes& pipes, int type) {
        forms::frmCalc& form = window();
        click(form.chkSelPretok[type]);
        enter(form.txtPocetPotrubi[type], pipes.txtPocetPotrubi);
        enter(form.txtPrumTroubVnej[type], pipes.txtPrumTroubVnej);
        enter(form.txtPrumTroubVnit[type], pipes.txtPrumTroubVnit);
    }
    /// The plain numbers of the panel, by the table, except the safety factor.
    void enterNumbers(const Facility& facility) {
        for (const PanelInput& row : panelInputs(facility.type)) {
            const InputInfo& input = info(row.input);
            if (input.stored != nullptr && !isOfSubPanel(row.input) && row.input != Input::SafetyFactor) {
                platform::TextBox& box = window().textBox(controlName(input.box, facility.type));
                enter(box, input.given(facility));
                leave(box);
            }
        }
    }
    void enterShaft(const Facility& facility);
    void enterTank(const Facility& facility);
};

void EnteredWindow::Parts::enterRain(const project::RainChoice& rain) {
    forms::frmCalc& form = window();
    forms::frmIntDialog& dialog = form.intDialog;
    click(form.cmdEdit[0]);
    if (rain.station > 0) {
        select(dialog.cboSelStanice, rain.station);
    } else {
        for (int row = 1; row <= data::kDurationCount; ++row) {
            const auto k = static_cast<std::size_t>(row) - 1;
            cell(dialog.fgIntDeste, row, 0);
            enter(dialog.txtSChange, rain.durations_min[k]);
            cell(dialog.fgIntDeste, row, 1);
            enter(dialog.txtSChange, rain.intensities_l_s_ha[k]);
        }
    }
    select(dialog.cboSelPeriod, rain.periodicity);
    for (int row = 1; rain.picks_row && row <= data::kDurationCount; ++row) {
        if (rain.durations_min[static_cast<std::size_t>(row) - 1] == rain.design_duration_min) {
            cell(dialog.fgIntDeste, row, 2);
            break;
        }
    }
    click(dialog.cmdOK);
    if (dialog.visible()) {
        program.enter([&] { dialog.close_requested(); });
    }
}

void EnteredWindow::Parts::enterAreas(const project::Project& project) {
    forms::frmCalc& form = window();
    forms::frmDialog& dialog = form.areaDialog;
    if (project.inputs.areas.empty()) {
        return;
    }
    click(form.cmdEdit[1]);
    for (std::size_t i = 0; i < project.inputs.areas.size(); ++i) {
        enter(dialog.txtSoucinitel, project.inputs.areas[i].runoff_coefficient);
        enter(dialog.txtPlocha, project.inputs.areas[i].area_m2);
        click(dialog.cmdZapsat);
        if (!project.texts.surfaces[i].empty()) {
            cell(dialog.fgZapisTab, static_cast<int>(i) + 1, 3);
            enter(dialog.txtSChange, project.texts.surfaces[i]);
        }
    }
    click(dialog.OKButton);
}

void EnteredWindow::Parts::chooseType(FacilityType type) {
    forms::frmCalc& form = window();
    tab(forms::kTabDesign);
    if (type == FacilityType::Tank) {
        click(form.optSelType[1]);
        return;
    }
    click(form.optSelType[0]);
    act(form.cboSelType, [](auto& list) { list.userGotFocus(); });
    select(form.cboSelType, static_cast<int>(type));
}

void EnteredWindow::Parts::enterShaft(const Facility& facility) {
    forms::frmCalc& form = window();
    ShaftShape shape = facility.shape;
    int ring = -1;
    if (facility.catalogue_row >= 0) {
        const auto catalogue = shaftCatalogue();
        shape = catalogue[static_cast<std::size_t>(facility.catalogue_row)].shape;
        const int round_rows = 8;
        ring = shape == ShaftShape::Round ? facility.catalogue_row : facility.catalogue_row - round_rows;
    }
    click(form.optSelTypSachty[static_cast<int>(shape)]);
    if (facility.sand_layer) {
        click(form.optSelTypPudy5[1]);
    }
    enter(form.txtSachtyCount, static_cast<float>(facility.txtSachtyCount));
    if (ring >= 0) {
        select(form.cboTypSachty, ring);
    } else if (shape == ShaftShape::Round) {
        enter(form.txtPrumerSachtyVnit, facility.inner_diameter_m);
        enter(form.txtTloustkaSteny, facility.txtTloustkaSteny);
    } else {
        enter(form.txtPrumerSachtyVnit, facility.inner_width_m);
        enter(form.txtPrumerSachtyVnej, facility.txtPrumerSachtyVnej);
        enter(form.txtTloustkaSteny, facility.txtTloustkaSteny);
    }
    enter(form.txtMinPrusakDraha, facility.txtMinPrusakDraha);
    enter(form.txtNezamrzHlPritok, facility.txtNezamrzHlPritok);
    enter(form.txtVyskaFiltrVrstvy, facility.txtVyskaFiltrVrstvy);
    if (facility.sand_layer) {
        enter(form.txtVyskaPiskVrstvy, facility.txtVyskaPiskVrstvy);
    }
    enterSafetyFactor(facility);
    click(form.cmdCalcul[5]);
}

void EnteredWindow::Parts::enterTank(const Facility& facility) {
    forms::frmCalc& form = window();
    enterNumbers(facility);
    if (facility.upstream_settling) {
        click(form.chkPredUsaz);
    }
    enterSafetyFactor(facility);
    click(form.cmdCalcul[6]);
}

void EnteredWindow::Parts::enterFacility(const Facility& facility) {
    forms::frmCalc& form = window();
    switch (facility.type) {
        case FacilityType::None:
            break;
        case FacilityType::Surface:
            enterNumbers(facility);
            enterSafetyFactor(facility);
            break;
        case FacilityType::Swale:
            if (facility.soil_option == 1) {
                click(form.optSelTypPudy2[1]);
            }
            enterNumbers(facility);
            enterSafetyFactor(facility);
            break;
        case FacilityType::SwaleTrench:
            if (facility.soil_option == 1) {
                click(form.optSelTypPudy3[1]);
            }
            enterNumbers(facility);
            enterSafetyFactor(facility);
            if (facility.overflow.given) {
                enterPipes(facility.overflow, 3);
                enter(form.txtSpecDrenOdtok[3], facility.overflow.txtSpecDrenOdtok);
                click(form.cmdOK[3]);
            }
            click(form.cmdCalcul[3]);
            break;
        case FacilityType::Trench:
            enterNumbers(facility);
            enterSafetyFactor(facility);
            if (facility.drain.given) {
                enterPipes(facility.drain, 4);
                enter(form.txtVystupPlocha[4], facility.drain.txtVystupPlocha);
                enter(form.txtVystupRychlost[4], facility.drain.txtVystupRychlost);
                click(form.cmdOK[4]);
            }
            click(form.cmdCalcul[4]);
            break;
        case FacilityType::Shaft:
            enterShaft(facility);
            break;
        case FacilityType::Tank:
            enterTank(facility);
            break;
    }
}

EnteredWindow::EnteredWindow(const project::Project& project) : parts_(std::make_unique<Parts>()) {
    parts_->program.start();
    parts_->enterTexts(project.texts);
    parts_->enter(parts_->window().txtHPV, project.inputs.groundwater_depth_m);
    parts_->enterRain(project.inputs.rain);
    parts_->enterAreas(project);
    parts_->enter(parts_->window().txtSoucFiltrace, project.inputs.filtration_m_s);
    parts_->leave(parts_->window().txtSoucFiltrace);
    parts_->chooseType(project.inputs.facility.type);
    // Where the choice was refused there is no panel to fill in.
    if (parts_->window().picResults[project.inputs.facility.type].onScreen()) {
        parts_->enterFacility(project.inputs.facility);
    }
}

EnteredWindow::~EnteredWindow() = default;

const std::vector<Message>& EnteredWindow::told() const {
    const auto& reports = parts_->desk.reports;
    for (std::size_t i = parts_->told.size(); i < reports.size(); ++i) {
        parts_->told.push_back(std::visit([](const auto& it) { return asDesigned(it); }, reports[i]));
    }
    return parts_->told;
}

const data::modPublicVariables& EnteredWindow::values() const {
    return parts_->program.values();
}

forms::frmCalc& EnteredWindow::window() {
    return parts_->window();
}

std::string EnteredWindow::report() {
    report::ReportData data = forms::reportData(window(), kMoment);
    // As the results tab does before it writes.
    data.texts.txtDetails = report::withBreakTags(data.texts.txtDetails);
    return report::htmlReport(data);
}

}  // namespace mero::design::test
