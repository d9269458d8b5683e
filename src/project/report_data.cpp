// SPDX-License-Identifier: MIT
/// Collects the report's data: the numbers of the design, the texts and choices of the project.
#include "project/report_data.h"

#include <cstddef>

#include "design/input.h"
#include "design/shaft_catalogue.h"
#include "platform/numbers/number_text.h"
#include "project/project.h"

namespace mero::project {
namespace {

using design::Facility;
using design::FacilityType;

report::RainValues rainOf(const RainChoice& rain, const design::Site& site) {
    return {
        .station = reference().StaniceNazev[static_cast<std::size_t>(rain.station)],
        .periodicity = numbers::general(reference().Periodicita[static_cast<std::size_t>(rain.periodicity)]),
        .rows = site.rains};
}

std::vector<report::PartialArea> areasOf(const Project& project) {
    std::vector<report::PartialArea> areas;
    for (std::size_t i = 0; i < project.inputs.areas.size(); ++i) {
        const PartialArea& area = project.inputs.areas[i];
        areas.push_back({area.area_m2, area.runoff_coefficient, project.texts.surfaces[i]});
    }
    return areas;
}

report::Options optionsOf(const Facility& facility, const design::DesignResult& result) {
    const bool has_swale = facility.type == FacilityType::SwaleTrench || facility.type == FacilityType::Swale;
    const auto soil = static_cast<std::size_t>(has_swale ? facility.soil_option : 0);
    report::Options options;
    options.soil_caption = info(design::Input::Soil).choices[soil].caption;
    options.overflow = facility.type == FacilityType::SwaleTrench && result.pipes;
    options.drain = facility.type == FacilityType::Trench && result.pipes;
    if (facility.type == FacilityType::Shaft) {
        options.shape = facility.shape;
        options.sand_layer = facility.sand_layer;
        if (facility.catalogue_row >= 0) {
            const auto& shaft = design::shaftCatalogue()[static_cast<std::size_t>(facility.catalogue_row)];
            options.shape = shaft.shape;
            options.ring = shaft.designation;
        }
    }
    options.upstream_settling = facility.type == FacilityType::Tank && facility.upstream_settling;
    return options;
}

}  // namespace

report::ReportData reportData(const Project& project, const design::Site& site,
                              const design::DesignResult& result, const platform::DateTime& now) {
    report::ReportData data{.texts = static_cast<const data::ProjectTexts&>(project.texts),
                            .type = project.inputs.facility.type,
                            .type_name = reference().TypyZasakovani[index(project.inputs.facility.type)],
                            .rain = rainOf(project.inputs.rain, site),
                            .partial_areas = areasOf(project),
                            .numbers = result.numbers,
                            .options = optionsOf(project.inputs.facility, result),
                            .date = platform::dateText(now),
                            .time = platform::timeText(now)};
    data.texts.txtDetails = report::withBreakTags(data.texts.txtDetails);
    return data;
}

}  // namespace mero::project
