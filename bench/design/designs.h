// SPDX-License-Identifier: MIT
/// Projects for the benchmarks of whole designs: many different ones of one type, the same in every run.
#pragma once

#include <array>
#include <cstddef>

#include "calc/sites.h"
#include "design/facility.h"
#include "design/site.h"

namespace mero::design::bench {

struct Project {
    Site site;
    Facility facility;
};

/// The sites of the formulas' benchmarks, with the inputs of every panel.
inline std::array<Project, calc::bench::kSites> makeProjects(FacilityType type) {
    const auto sites = calc::bench::makeSites();
    std::array<Project, calc::bench::kSites> projects{};
    for (std::size_t n = 0; n < projects.size(); ++n) {
        const calc::bench::Site& from = sites[n];
        Site& site = projects[n].site;
        site.has_areas = true;
        site.reduced_area_m2 = from.reduced_area_m2;
        site.rains = from.rains;
        site.picked_row = 2;
        site.filtration_m_s = from.filtration_m_s;
        site.groundwater_depth_m = 6.0F;
        Facility& facility = projects[n].facility;
        facility.type = type;
        facility.safety_factor = from.safety_factor;
        facility.soil_option = static_cast<int>(n % 2);
        facility.swale_filtration_m_s = from.filtration_m_s;
        facility.trench_width_m = from.width_m;
        facility.trench_height_m = from.height_m;
        facility.overflow = {true, 1.0F, 350.0F, 300.0F};
        facility.throttled_outflow_l_s_ha = 2.0F;
        facility.drain = {true, 1.0F, 160.0F, 145.0F};
        facility.outlet_area_cm2_m = 50.0F;
        facility.outlet_velocity_m_s = 0.1F;
        facility.inner_diameter_m = 1.0F + from.width_m;
        facility.wall_thickness_m = 0.15F;
        facility.shaft_count = 2;
        facility.inlet_depth_m = 0.8F;
        facility.filter_layer_m = 0.5F;
        facility.specific_infiltration_l_s_ha = 5.0F;
        facility.bottom_length_m = 10.0F * from.height_m;
        facility.bottom_width_m = 10.0F;
        facility.tank_depth_m = from.width_m;
        facility.side_slope = 2.0F;
    }
    return projects;
}

}  // namespace mero::design::bench
