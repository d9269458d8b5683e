// SPDX-License-Identifier: MIT
/// Enters the project, and presses the button that calculates.
/// An action on a control that a user could not reach is a mistake of this test and throws.
#include "design/entered_window.h"

#include <stdexcept>
#include <variant>

#include "forms/calc/report_data.h"
#include "forms/keeping/enter_project.h"
#include "platform/locale_settings.h"
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
};

EnteredWindow::EnteredWindow(const project::Project& project) : parts_(std::make_unique<Parts>()) {
    parts_->program.start();
    forms::ProjectEntry entry(parts_->program, [](std::string_view) { return true; });
    entry.enter(project);
    if (!entry.unreachable().empty()) {
        throw std::logic_error("a user cannot reach " + entry.unreachable().front());
    }
    const FacilityType type = project.inputs.facility.type;
    // Where the choice was refused there is no panel; types that calculate live have no button.
    if (window().picResults[type].onScreen() && !isLive(type)) {
        parts_->program.enter([&] { window().cmdCalcul[type].userClick(); });
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
