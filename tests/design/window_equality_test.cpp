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

struct Box {
    Quantity quantity;
    const platform::TextBox* box;
};

/// The result boxes of the panel.
std::vector<Box> boxesOf(const forms::frmCalc& form, FacilityType type) {
    const int page = static_cast<int>(type);
    std::vector<Box> boxes{{Quantity::Inflow, &form.txtOdtokDoVsak}};
    const auto add = [&](Quantity quantity, const auto& boxes_of_types) {
        boxes.push_back({quantity, &boxes_of_types[page]});
    };
    if (type != FacilityType::Tank) {
        add(Quantity::InfiltrationArea, form.txtVsakPlocha);
    }
    if (type != FacilityType::Surface) {
        add(Quantity::StorageVolume, form.txtObjAkum);
    }
    switch (type) {
        case FacilityType::Surface:
            break;
        case FacilityType::Swale:
            add(Quantity::WaterDepth, form.txtVyskaVzduti);
            add(Quantity::EmptyingTime, form.txtDobaPrazdneni);
            break;
        case FacilityType::SwaleTrench:
            add(Quantity::TrenchLength, form.txtDelkaRyhy);
            add(Quantity::SwaleDepth, form.txtHloubkaPrulehu);
            add(Quantity::SwaleWidth, form.txtSirkaPrulehu);
            add(Quantity::EmptyingTime, form.txtDobaPrazdneni);
            break;
        case FacilityType::Trench:
            add(Quantity::TrenchLength, form.txtDelkaRyhy);
            add(Quantity::StorageCoefficient, form.txtSoucAkum);
            break;
        case FacilityType::Shaft:
            add(Quantity::WaterDepth, form.txtVyskaVzduti);
            boxes.push_back({Quantity::ShaftDepth, &form.txtHloubkaSachty});
            boxes.push_back({Quantity::RequiredGroundwaterDepth, &form.txtPotrHloubkaZahl});
            add(Quantity::RequiredFilterPermeability, form.txtSoucFiltrPruleh);
            break;
        case FacilityType::Tank:
            boxes.push_back({Quantity::InfiltrationFlow, &form.txtVsakTok});
            boxes.push_back({Quantity::TankVolume, &form.txtVypObjNadrz});
            break;
    }
    return boxes;
}

float storedInWindow(const data::modPublicVariables& values, Quantity quantity) {
    switch (quantity) {
        case Quantity::ReducedArea:
            return values.RedukovanaPlocha;
        case Quantity::Filtration:
            return values.txtSoucFiltrace;
        case Quantity::Inflow:
            return values.txtOdtokDoVsak;
        case Quantity::CriticalDuration:
            return values.VybranaDoba;
        case Quantity::CriticalIntensity:
            return values.VybranaIntenzita;
        case Quantity::InfiltrationArea:
            return values.txtVsakPlocha;
        case Quantity::StorageVolume:
            return values.txtObjAkum;
        case Quantity::WaterDepth:
            return values.txtVyskaVzduti;
        case Quantity::EmptyingTime:
            return values.txtDobaPrazdneni;
        case Quantity::TrenchLength:
            return values.txtDelkaRyhy;
        case Quantity::SwaleDepth:
            return values.txtHloubkaPrulehu;
        case Quantity::SwaleWidth:
            return values.txtSirkaPrulehu;
        case Quantity::StorageCoefficient:
            return values.s_RR;
        case Quantity::ThrottledOutflow:
            return values.Q_dr;
        case Quantity::DrainInflow:
            return values.drain_inflow_l_s;
        case Quantity::DrainOutflow:
            return values.drain_outflow_l_s;
        case Quantity::ShaftInnerDiameter:
            return values.D_i;
        case Quantity::ShaftOuterDiameter:
            return values.D_a;
        case Quantity::ShaftDepth:
            return values.txtHloubkaSachty;
        case Quantity::RequiredGroundwaterDepth:
            return values.txtPotrHloubkaZahl;
        case Quantity::RequiredFilterPermeability:
            return values.txtSoucFiltrPruleh;
        case Quantity::InfiltrationFlow:
            return values.txtVsakTok;
        case Quantity::TankVolume:
            return values.txtVypObjNadrz;
        case Quantity::TankTopLength:
            return values.tank_top_length_m;
        case Quantity::TankTopWidth:
            return values.tank_top_width_m;
    }
    return 0;
}

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
        // A swale's coefficient lives where a shaft's filter does.
        if (belongsTo(quantity.quantity, type)) {
            EXPECT_EQ(result.value(quantity.quantity), storedInWindow(window.values(), quantity.quantity))
                << quantity.name;
        }
    }
    EXPECT_EQ(result.swale_filtration_m_s, window.values().txtSoucFiltrPruleh);
}

void compareBoxes(EnteredWindow& window, const DesignResult& result, FacilityType type) {
    for (const Box& box : boxesOf(window.window(), type)) {
        // A surface that could not be calculated keeps the "0" that it was cleared with.
        const bool cleared_surface =
            type == FacilityType::Surface && box.quantity == Quantity::InfiltrationArea;
        const std::string empty = cleared_surface ? "0" : "";
        EXPECT_EQ(
            result.has(box.quantity) ? boxText(box.quantity, type, result.written(box.quantity)) : empty,
            box.box->text())
            << box.box->name();
    }
}

/// Compares one project; false when anything differs.
bool agrees(const project::Project& project) {
    EnteredWindow window(project);
    const Site site = project::prepareSite(project.inputs, storeFor(project));
    const DesignResult result = design(site, project.inputs.facility);
    const FacilityType type = project.inputs.facility.type;

    const std::vector<Message> expected = messages(result);
    EXPECT_EQ(expected.size(), window.told().size());
    for (std::size_t i = 0; i < std::min(expected.size(), window.told().size()); ++i) {
        EXPECT_EQ(expected[i].text, window.told()[i].text);
        EXPECT_EQ(expected[i].severity, window.told()[i].severity) << expected[i].text;
        EXPECT_EQ(expected[i].titled_error, window.told()[i].titled_error) << expected[i].text;
        EXPECT_EQ(expected[i].error_number, window.told()[i].error_number);
    }
    EXPECT_EQ(result.type_chosen, window.window().SelectedType == static_cast<int>(type));
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
        for (const Verdict verdict : result.verdicts.all()) {
            ++seen[static_cast<std::size_t>(verdict)];
        }
    }
    for (const VerdictInfo& verdict : verdicts()) {
        if (verdict.verdict != Verdict::ErrorSubscript) {
            EXPECT_GT(seen[static_cast<std::size_t>(verdict.verdict)], 0) << verdict.code;
        }
    }
}

}  // namespace
}  // namespace mero::design::test
