// SPDX-License-Identifier: MIT
/// The design without the window gives what the window gives: every number, every box, every message.
/// Thousands of random projects are entered into the real forms and compared.
#include <gtest/gtest.h>

#include <algorithm>

#include "design/design.h"
#include "design/entered_window.h"
#include "design/messages.h"
#include "design/random_projects.h"
#include "project/prepare_site.h"
#include "project/report_data.h"
#include "report/html_report.h"

namespace mero::design::test {
namespace {

project::RainStore storeFor(const project::Project& project) {
    project::RainStore store;
    MadeUpRain database;
    if (project.inputs.rain.station > 0) {
        store.load(project.inputs.rain.station, database, "/nowhere");
    }
    return store;
}

void compareNumbers(EnteredWindow& window, const DesignResult& result, FacilityType type) {
    for (const QuantityInfo& quantity : quantities()) {
        if (belongsTo(quantity.quantity, type)) {
            EXPECT_EQ(result.value(quantity.quantity), window.values().*quantity.stored) << quantity.name;
        }
    }
    for (const PanelInput& row : panelInputs(type)) {
        if (const InputInfo& input = info(row.input); input.stored != nullptr) {
            EXPECT_EQ(result.numbers.*input.stored, window.values().*input.stored) << input.path;
        }
    }
    EXPECT_EQ(result.numbers.txtSachtyCount, window.values().txtSachtyCount);
    EXPECT_EQ(result.numbers.txtSoucFiltrPruleh, window.values().txtSoucFiltrPruleh);
}

void compareBox(const DesignResult& result, Quantity quantity, FacilityType type, const std::string& empty,
                const platform::TextBox& box) {
    EXPECT_EQ(result.has(quantity) ? boxText(quantity, type, result.written(quantity)) : empty, box.text())
        << box.name();
}

void compareBoxes(EnteredWindow& window, const DesignResult& result, FacilityType type) {
    const forms::frmCalc& form = window.window();
    compareBox(result, Quantity::Inflow, type, "", form.txtOdtokDoVsak);
    for (const ResultBox& row : resultBoxes(type)) {
        // A surface that could not be calculated keeps the "0" that it was cleared with.
        compareBox(result, row.quantity, type, row.cleared_text == nullptr ? "" : row.cleared_text,
                   form.textBox(controlName(row.box, type)));
    }
}

/// Compares one project; false when anything differs.
bool agrees(const project::Project& project) {
    EnteredWindow window(project);
    const Site site = project::prepareSite(project.inputs, storeFor(project));
    const DesignResult result = design(site, project.inputs.facility);
    const FacilityType type = project.inputs.facility.type;

    const std::vector<Message> expected = messages(result.verdicts.all());
    EXPECT_EQ(expected.size(), window.told().size());
    for (std::size_t i = 0; i < std::min(expected.size(), window.told().size()); ++i) {
        EXPECT_EQ(expected[i].text, window.told()[i].text);
        EXPECT_EQ(expected[i].severity, window.told()[i].severity) << expected[i].text;
        EXPECT_EQ(expected[i].titled_error, window.told()[i].titled_error) << expected[i].text;
        EXPECT_EQ(expected[i].error_number, window.told()[i].error_number);
        EXPECT_EQ(expected[i].id, window.told()[i].id) << expected[i].text;
    }
    EXPECT_EQ(result.type_chosen, window.window().SelectedType == type);
    compareNumbers(window, result, type);
    if (result.type_chosen || type == FacilityType::Surface) {
        compareBoxes(window, result, type);
    }
    if (result.type_chosen) {
        EXPECT_EQ(report::htmlReport(project::reportData(project, site, result, EnteredWindow::kMoment)),
                  window.report());
    }
    return !::testing::Test::HasFailure();
}

constexpr std::uint64_t kSeed = 20261120;
constexpr int kProjects = 3000;

TEST(WindowEquality, RandomProjectsGiveTheSameNumbersBoxesMessagesAndReports) {
    RandomProjects projects(kSeed);
    for (int n = 0; n < kProjects; ++n) {
        const project::Project project = projects.next();
        ASSERT_TRUE(agrees(project)) << "project " << n << " of seed " << kSeed << ", type "
                                     << static_cast<int>(project.inputs.facility.type);
    }
}

/// The comparison is worth something only when it meets every kind of message.
TEST(WindowEquality, RandomProjectsMeetEveryVerdict) {
    RandomProjects projects(kSeed);
    std::array<int, kVerdictCount> seen{};
    for (int n = 0; n < kProjects; ++n) {
        const project::Project project = projects.next();
        const Site site = project::prepareSite(project.inputs, storeFor(project));
        const DesignResult result = design(site, project.inputs.facility);
        for (const Verdict& verdict : result.verdicts.all()) {
            ++seen[index(verdict.id)];
        }
    }
    for (const VerdictInfo& verdict : verdicts()) {
        if (isOfDesigns(verdict.id) && verdict.id != VerdictId::ErrorSubscript) {
            EXPECT_GT(seen[index(verdict.id)], 0) << verdict.code;
        }
    }
}

}  // namespace
}  // namespace mero::design::test
