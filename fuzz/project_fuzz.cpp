// SPDX-License-Identifier: MIT
/// Project files of arbitrary bytes: each must give an error of one line that names the file, or a project
/// that reads back unchanged in any notation. Its design must give finite numbers, its report its frame.
#include <cmath>
#include <cstdint>
#include <exception>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/batch/design_output.h"
#include "design/design.h"
#include "monkey/invented_rain.h"
#include "platform/clock.h"
#include "platform/numbers/runtime_error.h"
#include "project/prepare_site.h"
#include "project/project.h"
#include "project/read_project.h"
#include "project/report_data.h"
#include "report/html_report.h"
#include "support/require.h"

namespace {

using mero::fuzz::require;
namespace design = mero::design;
namespace project = mero::project;

constexpr const char* kFile = "p.json";

/// Requires an error text of one short line.
void requireTold(std::string_view error) {
    constexpr std::size_t kLongest = 2000;
    require(error.starts_with(kFile), "an error names the file");
    require(error.size() <= kLongest, "an error is short");
    for (const char c : error) {
        require(static_cast<unsigned char>(c) >= ' ' && c != '\x7f', "an error is one line");
    }
    // This form of dump() throws for texts that are not UTF-8.
    require(!nlohmann::json(error).dump().empty(), "an error is readable");
}

/// The project, or empty when it was refused; any other exception is a finding.
std::optional<project::Project> read(const std::string& document) {
    try {
        return project::readProject(document, kFile);
    } catch (const project::ProjectError& error) {
        requireTold(error.what());
        return std::nullopt;
    }
}

std::vector<float> numbersOf(const project::Inputs& inputs) {
    const project::RainChoice& rain = inputs.rain;
    const design::Facility& facility = inputs.facility;
    std::vector<float> numbers{static_cast<float>(rain.station),
                               static_cast<float>(rain.periodicity),
                               rain.design_duration_min,
                               static_cast<float>(rain.picks_row),
                               inputs.filtration_m_s,
                               inputs.groundwater_depth_m,
                               static_cast<float>(facility.type),
                               facility.txtSoucBezp,
                               static_cast<float>(facility.soil_option),
                               facility.txtSoucFiltrPruleh,
                               facility.txtPorVyplne,
                               facility.txtSirkaRyhy,
                               facility.txtVyskaRyhy,
                               static_cast<float>(facility.overflow.given),
                               facility.overflow.txtPocetPotrubi,
                               facility.overflow.txtPrumTroubVnej,
                               facility.overflow.txtPrumTroubVnit,
                               facility.overflow.txtSpecDrenOdtok,
                               static_cast<float>(facility.drain.given),
                               facility.drain.txtPocetPotrubi,
                               facility.drain.txtPrumTroubVnej,
                               facility.drain.txtPrumTroubVnit,
                               facility.drain.txtVystupPlocha,
                               facility.drain.txtVystupRychlost,
                               static_cast<float>(facility.catalogue_row),
                               static_cast<float>(facility.shape),
                               static_cast<float>(facility.sand_layer),
                               static_cast<float>(facility.txtSachtyCount),
                               facility.inner_diameter_m,
                               facility.inner_width_m,
                               facility.txtPrumerSachtyVnej,
                               facility.txtTloustkaSteny,
                               facility.txtMinPrusakDraha,
                               facility.txtNezamrzHlPritok,
                               facility.txtVyskaFiltrVrstvy,
                               facility.txtVyskaPiskVrstvy,
                               facility.txtSpecMeroIntenz,
                               facility.txtDelkaDnaNadrz,
                               facility.txtSirkaDnaNadrz,
                               facility.txtHloubkaNadrz,
                               facility.txtSklonSvahuNadrz,
                               static_cast<float>(facility.upstream_settling)};
    numbers.insert(numbers.end(), rain.durations_min.begin(), rain.durations_min.end());
    numbers.insert(numbers.end(), rain.intensities_l_s_ha.begin(), rain.intensities_l_s_ha.end());
    for (const project::PartialArea& area : inputs.areas) {
        numbers.push_back(area.area_m2);
        numbers.push_back(area.runoff_coefficient);
    }
    return numbers;
}

std::vector<std::string> textsOf(const project::Project& read) {
    std::vector<std::string> texts = read.texts.surfaces;
    for (const design::TextInputInfo& field : design::textInputs()) {
        texts.push_back(read.texts.*(field.stored));
    }
    return texts;
}

/// Requires the same project from other notations: with and without line breaks, with escapes for every
/// character that is not ASCII.
void requireReadsBack(const std::string& document, const project::Project& first) {
    const nlohmann::json parsed = nlohmann::json::parse(document);
    for (const int indent : {-1, 3}) {
        const auto again = read(parsed.dump(indent, ' ', indent < 0));
        require(again.has_value(), "what was accepted is accepted again");
        require(numbersOf(again->inputs) == numbersOf(first.inputs), "the same numbers");
        require(textsOf(*again) == textsOf(first), "the same texts");
        require(again->given == first.given, "the same values are given");
    }
}

/// The rain of its station, if the invented database has it.
std::optional<project::RainStore> rainOf(const project::Project& read) {
    project::RainStore store;
    mero::monkey::InventedRain database;
    const int station = read.inputs.rain.station;
    if (station > 0) {
        if (!mero::monkey::InventedRain::has(project::reference().StaniceCislo(station))) {
            return std::nullopt;
        }
        store.load(station, database, "");
    }
    return store;
}

void requireNumbers(std::string_view text) {
    for (const std::string_view word : {"inf", "nan"}) {
        require(text.find(word) == std::string_view::npos, "every number is one");
    }
}

void requireOutputs(project::Project read, const design::Site& site, const design::DesignResult& result) {
    require(nlohmann::json::accept(mero::app::resultJson(read, result)), "the results are JSON");
    const mero::platform::DateTime now{2026, 11, 20, 14, 5, 9};
    if (result.type_chosen) {
        const std::string html = mero::report::htmlReport(project::reportData(read, site, result, now));
        require(html.starts_with("<html><body>") && html.ends_with("</div></body><html>\r\n"),
                "the report has its frame");
        require(html.find(read.texts.txtProjName) != std::string::npos,
                "the project's name stands as it was given");
    }
    // Without the texts, which may contain "inf".
    read.texts = {};
    read.texts.surfaces.resize(read.inputs.areas.size());
    requireNumbers(mero::app::resultTable(read, result));
    if (result.type_chosen) {
        const std::string html = mero::report::htmlReport(project::reportData(read, site, result, now));
        for (const char* word : {">inf", ">-inf", ">nan", ">-nan"}) {
            require(html.find(word) == std::string::npos, "every number of the report is one");
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string document(data, data + size);
    const auto accepted = read(document);
    if (!accepted) {
        return 0;
    }
    requireReadsBack(document, *accepted);
    for (const float number : numbersOf(accepted->inputs)) {
        require(std::fabs(number) <= static_cast<float>(project::kLargestNumber),
                "numbers are within limits");
    }
    const auto rain = rainOf(*accepted);
    if (rain) {
        const design::Site site = project::prepareSite(accepted->inputs, *rain);
        const design::DesignResult result = design::design(site, accepted->inputs.facility);
        for (const design::QuantityInfo& quantity : design::quantities()) {
            require(std::isfinite(result.value(quantity.quantity)) &&
                        std::isfinite(result.written(quantity.quantity)),
                    "every result is a number");
        }
        requireOutputs(*accepted, site, result);
    }
    return 0;
}
