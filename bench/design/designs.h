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
        facility.txtSoucBezp = from.safety_factor;
        facility.soil_option = static_cast<int>(n % 2);
        facility.txtSoucFiltrPruleh = from.filtration_m_s;
        facility.txtSirkaRyhy = from.width_m;
        facility.txtVyskaRyhy = from.height_m;
        facility.overflow = {{.txtPocetPotrubi = 1.0F,
                              .txtPrumTroubVnej = 350.0F,
                              .txtPrumTroubVnit = 300.0F,
                              .txtSpecDrenOdtok = 2.0F},
                             true};
        facility.drain = {{.txtPocetPotrubi = 1.0F,
                           .txtPrumTroubVnej = 160.0F,
                           .txtPrumTroubVnit = 145.0F,
                           .txtVystupPlocha = 50.0F,
                           .txtVystupRychlost = 0.1F},
                          true};
        facility.inner_diameter_m = 1.0F + from.width_m;
        facility.txtTloustkaSteny = 0.15F;
        facility.txtSachtyCount = 2;
        facility.txtNezamrzHlPritok = 0.8F;
        facility.txtVyskaFiltrVrstvy = 0.5F;
        facility.txtSpecMeroIntenz = 5.0F;
        facility.txtDelkaDnaNadrz = 10.0F * from.height_m;
        facility.txtSirkaDnaNadrz = 10.0F;
        facility.txtHloubkaNadrz = from.width_m;
        facility.txtSklonSvahuNadrz = 2.0F;
    }
    return projects;
}

}  // namespace mero::design::bench
