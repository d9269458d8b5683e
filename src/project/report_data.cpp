// SPDX-License-Identifier: MIT
/// The stored values of a fresh program after one design, field by field.
/// What the panel of the chosen type does not offer keeps the value that the program starts with.
#include "project/report_data.h"

#include <cstddef>

#include "design/shaft_catalogue.h"
#include "platform/numbers/number_text.h"
#include "project/reference.h"

namespace mero::project {
namespace {

using design::Facility;
using design::FacilityType;
using design::Quantity;

constexpr const char* kSoilCaptions[] = {"Písek střední až jemný", "Slit a písek, slit"};

/// A line break of the description becomes a tag.
std::string withBreakTags(std::string text) {
    constexpr std::string_view kLineEnd = "\r\n";
    constexpr std::string_view kTag = "<br>";
    for (std::size_t at = text.find(kLineEnd); at != std::string::npos;
         at = text.find(kLineEnd, at + kTag.size())) {
        text.replace(at, kLineEnd.size(), kTag);
    }
    return text;
}

report::RainValues rainOf(const RainChoice& rain, const design::Site& site,
                          const design::DesignResult& result) {
    report::RainValues values;
    values.station = reference().StaniceNazev[static_cast<std::size_t>(rain.station)];
    values.periodicity =
        numbers::general(reference().Periodicita[static_cast<std::size_t>(rain.periodicity)]);
    for (std::size_t k = 0; k < site.rains.size(); ++k) {
        values.durations_min[k] = site.rains[k].duration_min;
        values.intensities_lsha[k] = site.rains[k].intensity_l_s_ha;
    }
    values.chosen_duration_min = result.picked_rain.duration_min;
    return values;
}

std::vector<report::PartialArea> areasOf(const Project& project) {
    std::vector<report::PartialArea> areas;
    for (std::size_t i = 0; i < project.inputs.areas.size(); ++i) {
        const PartialArea& area = project.inputs.areas[i];
        areas.push_back({area.area_m2, area.runoff_coefficient, project.texts.surfaces[i]});
    }
    return areas;
}

report::PipeValues pipesOf(const Facility& facility, const design::DesignResult& result) {
    report::PipeValues values;
    values.count = 1.0F;
    const bool overflow = facility.type == FacilityType::SwaleTrench && facility.overflow.given;
    const bool drain = facility.type == FacilityType::Trench && facility.drain.given;
    if (overflow || drain) {
        const design::Pipes& pipes = overflow ? facility.overflow : facility.drain;
        values.count = pipes.count;
        values.inner_diameter_mm = pipes.inner_diameter_mm;
        values.outer_diameter_mm = pipes.outer_diameter_mm;
    }
    values.throttled_overflow = overflow && result.pipes;
    values.drain = drain && result.pipes;
    values.throttled_outflow_lsha = overflow ? facility.throttled_outflow_l_s_ha : 0.0F;
    values.outlet_area_cm2_per_m = drain ? facility.outlet_area_cm2_m : 0.0F;
    values.outlet_velocity_m_s = drain ? facility.outlet_velocity_m_s : 0.0F;
    return values;
}

report::ShaftValues shaftOf(const Facility& facility, const design::DesignResult& result) {
    if (facility.type != FacilityType::Shaft) {
        report::ShaftValues untouched;
        untouched.count = 1;
        return untouched;
    }
    design::ShaftShape shape = facility.shape;
    std::string ring;
    if (facility.catalogue_row >= 0) {
        const auto& shaft = design::shaftCatalogue()[static_cast<std::size_t>(facility.catalogue_row)];
        shape = shaft.shape;
        ring = shaft.designation;
    }
    return {.shape = static_cast<int>(shape),
            .sand_layer = facility.sand_layer,
            .count = facility.shaft_count,
            .ring = ring,
            .inflow_depth_m = facility.inlet_depth_m,
            .inner_diameter_m = result.value(Quantity::ShaftInnerDiameter),
            .side1_m = result.shaft_side1_m,
            .side2_m = result.shaft_side2_m,
            .wall_thickness_m = result.shaft_wall_m,
            .filter_layer_m = facility.filter_layer_m,
            .sand_layer_m = facility.sand_layer ? facility.sand_layer_m : 0.0F,
            .required_depth_m = result.value(Quantity::ShaftDepth),
            .min_groundwater_depth_m = result.value(Quantity::RequiredGroundwaterDepth),
            .required_filtration_m_s = result.swale_filtration_m_s};
}

report::TankValues tankOf(const Facility& facility, const design::DesignResult& result) {
    if (facility.type != FacilityType::Tank) {
        return {};
    }
    return {.upstream_settling = facility.upstream_settling,
            .specific_infiltration_lsha = facility.specific_infiltration_l_s_ha,
            .bottom_length_m = facility.bottom_length_m,
            .bottom_width_m = facility.bottom_width_m,
            .depth_m = facility.tank_depth_m,
            .side_slope = facility.side_slope,
            .infiltration_flow_m3_s = result.value(Quantity::InfiltrationFlow),
            .volume_by_dimensions_m3 = result.value(Quantity::TankVolume)};
}

}  // namespace

report::ReportData reportData(const Project& project, const design::Site& site,
                              const design::DesignResult& result, const platform::DateTime& now) {
    const Inputs& inputs = project.inputs;
    const Facility& facility = inputs.facility;
    const auto type = static_cast<std::size_t>(facility.type);
    const bool has_trench =
        facility.type == FacilityType::SwaleTrench || facility.type == FacilityType::Trench;
    const bool has_swale = facility.type == FacilityType::SwaleTrench || facility.type == FacilityType::Swale;
    report::TrenchValues trench;
    trench.fill_porosity = Facility{}.fill_porosity;
    if (has_trench) {
        trench = {.fill_porosity = facility.fill_porosity,
                  .width_m = facility.trench_width_m,
                  .height_m = facility.trench_height_m,
                  .length_m = result.value(Quantity::TrenchLength)};
    }
    return {.project_name = project.texts.name,
            .designer = project.texts.designer,
            .investor = project.texts.investor,
            .site = project.texts.site,
            .description = withBreakTags(project.texts.description),
            .infiltration_type = static_cast<int>(type),
            .infiltration_type_name = reference().TypyZasakovani[type],
            .rain = rainOf(inputs.rain, site, result),
            .partial_areas = areasOf(project),
            .drained_area_m2 = site.reduced_area_m2,
            .subsoil_filtration_m_s = result.value(Quantity::Filtration),
            .subsoil = project.texts.subsoil,
            .groundwater_depth_m = inputs.groundwater_depth_m,
            .safety_factor = facility.safety_factor,
            .infiltration_area_m2 = result.value(Quantity::InfiltrationArea),
            .storage_volume_m3 = result.value(Quantity::StorageVolume),
            .water_depth_m = result.value(Quantity::WaterDepth),
            .swale = {.soil_caption = kSoilCaptions[has_swale ? facility.soil_option : 0],
                      .filtration_m_s = result.swale_filtration_m_s,
                      .emptying_time_h = result.value(Quantity::EmptyingTime),
                      .width_m = result.value(Quantity::SwaleWidth),
                      .depth_m = result.value(Quantity::SwaleDepth)},
            .trench = trench,
            .pipes = pipesOf(facility, result),
            .shaft = shaftOf(facility, result),
            .tank = tankOf(facility, result),
            .date = platform::dateText(now),
            .time = platform::timeText(now)};
}

}  // namespace mero::project
