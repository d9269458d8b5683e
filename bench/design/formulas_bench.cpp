// SPDX-License-Identifier: MIT
/// Measures only the formulas of the same designs, each once: no rounding by fields, no live calculation, no
/// verdicts. The difference to a whole design is the time for these.
#include <benchmark/benchmark.h>

#include <cstddef>

#include "calc/drain.h"
#include "calc/inflow.h"
#include "calc/shaft.h"
#include "calc/shaft_geometry.h"
#include "calc/surface_infiltration.h"
#include "calc/swale.h"
#include "calc/swale_trench.h"
#include "calc/tank.h"
#include "calc/trench.h"
#include "design/designs.h"
#include "platform/numbers/checked.h"

namespace mero::design::bench {
namespace {

using numbers::toSingle;

/// Runs `formulas` on the projects in turn.
template <typename Formulas>
void run(benchmark::State& state, FacilityType type, Formulas formulas) {
    const auto projects = makeProjects(type);
    std::size_t n = 0;
    for (auto _ : state) {
        const Project& project = projects[n++ % projects.size()];
        benchmark::DoNotOptimize(formulas(project.site, project.facility));
    }
    state.SetItemsProcessed(state.iterations());
}

void Surface(benchmark::State& state) {
    run(state, FacilityType::Surface, [](const Site& site, const Facility&) {
        return calc::surface::infiltrationArea(site.reduced_area_m2, site.filtration_m_s,
                                               site.rains[2].intensity_l_s_ha);
    });
}
BENCHMARK(Surface)->Name("Formulas/Surface");

void Swale(benchmark::State& state) {
    run(state, FacilityType::Swale, [](const Site& site, const Facility& facility) {
        const float area = calc::swale::startingArea(site.reduced_area_m2, facility.soil_option, 0.0F);
        const float volume = toSingle(calc::swale::storageVolume({.reduced_area_m2 = site.reduced_area_m2,
                                                                  .infiltration_area_m2 = area,
                                                                  .filtration_m_s = site.filtration_m_s,
                                                                  .safety_factor = facility.txtSoucBezp},
                                                                 site.rains)
                                          .maximum);
        return calc::swale::emptyingTimeHours(calc::swale::pondingDepth(volume, area), site.filtration_m_s);
    });
}
BENCHMARK(Swale)->Name("Formulas/Swale");

calc::TrenchSection sectionOf(const Site& site, const Facility& facility, const Pipes& pipes) {
    return {.width_m = facility.txtSirkaRyhy,
            .height_m = facility.txtVyskaRyhy,
            .storage_coefficient = calc::drain::storageCoefficient(
                {pipes.txtPrumTroubVnit, pipes.txtPrumTroubVnej, pipes.txtPocetPotrubi},
                facility.txtPorVyplne, facility.txtSirkaRyhy, facility.txtVyskaRyhy),
            .filtration_m_s = site.filtration_m_s};
}

void SwaleTrench(benchmark::State& state) {
    run(state, FacilityType::SwaleTrench, [](const Site& site, const Facility& facility) {
        const float area = calc::swale::startingArea(site.reduced_area_m2, facility.soil_option, 0.0F);
        const float volume =
            toSingle(calc::swale::storageVolume({.reduced_area_m2 = site.reduced_area_m2,
                                                 .infiltration_area_m2 = area,
                                                 .filtration_m_s = facility.txtSoucFiltrPruleh,
                                                 .safety_factor = facility.txtSoucBezp},
                                                site.rains)
                         .maximum);
        const float length = toSingle(
            calc::swale_trench::trenchLength({.reduced_area_m2 = site.reduced_area_m2,
                                              .infiltration_area_m2 = area,
                                              .throttled_m3_s = calc::drain::throttledOutflow(
                                                  site.reduced_area_m2, facility.overflow.txtSpecDrenOdtok),
                                              .swale_volume_m3 = volume,
                                              .safety_factor = facility.txtSoucBezp,
                                              .trench = sectionOf(site, facility, facility.overflow)},
                                             site.rains)
                .maximum);
        if (!(length > 0.0F)) {  // the swale alone is sufficient
            return volume;
        }
        const float depth = calc::swale_trench::swaleDepth(volume, length, facility.txtSirkaRyhy);
        return calc::swale::emptyingTimeHours(depth, facility.txtSoucFiltrPruleh);
    });
}
BENCHMARK(SwaleTrench)->Name("Formulas/SwaleTrench");

void Trench(benchmark::State& state) {
    run(state, FacilityType::Trench, [](const Site& site, const Facility& facility) {
        const calc::trench::Balance balance{.reduced_area_m2 = site.reduced_area_m2,
                                            .safety_factor = facility.txtSoucBezp,
                                            .section = sectionOf(site, facility, facility.drain)};
        const calc::CriticalRain critical = calc::trench::requiredLength(balance, site.rains);
        const float length = toSingle(critical.maximum);
        const calc::Rain rain = critical.rain.value_or(site.rains[2]);
        const float volume = calc::trench::storageVolume(balance, length, rain);
        const float inflow = calc::inflow(site.reduced_area_m2, rain.intensity_l_s_ha);
        const float outflow =
            calc::trench::drainOutflow({facility.drain.txtVystupPlocha, facility.drain.txtPocetPotrubi,
                                        facility.drain.txtVystupRychlost},
                                       length);
        return volume + inflow + outflow +
               calc::trench::infiltrationArea(facility.txtVyskaRyhy, facility.txtSirkaRyhy, length);
    });
}
BENCHMARK(Trench)->Name("Formulas/Trench");

void Shaft(benchmark::State& state) {
    run(state, FacilityType::Shaft, [](const Site& site, const Facility& facility) {
        const calc::shaft::Balance balance{
            .reduced_area_m2 = site.reduced_area_m2,
            .filtration_m_s = site.filtration_m_s,
            .safety_factor = facility.txtSoucBezp,
            .shafts = {.count = facility.txtSachtyCount,
                       .outer_diameter_m = calc::shaft_geometry::roundOuterDiameter(
                           facility.inner_diameter_m, facility.txtTloustkaSteny),
                       .inner_diameter_m = facility.inner_diameter_m}};
        const calc::CriticalRain critical = calc::shaft::waterLevel(balance, site.rains);
        const float level = toSingle(critical.maximum);
        const float area = calc::shaft::infiltrationArea(balance.shafts, level);
        return calc::shaft::storageVolume(balance, area, critical.rain.value_or(site.rains[2])) +
               calc::shaft::requiredFilterPermeability(level, balance.shafts, site.filtration_m_s);
    });
}
BENCHMARK(Shaft)->Name("Formulas/Shaft");

void Tank(benchmark::State& state) {
    run(state, FacilityType::Tank, [](const Site& site, const Facility& facility) {
        const float flow = calc::tank::infiltrationFlow(facility.txtSpecMeroIntenz, site.reduced_area_m2);
        const float storage = toSingle(calc::tank::requiredStorage({.reduced_area_m2 = site.reduced_area_m2,
                                                                    .infiltration_flow_m3_s = flow,
                                                                    .safety_factor = facility.txtSoucBezp},
                                                                   site.rains)
                                           .maximum);
        const calc::tank::Shape shape{
            .bottom_length_m = facility.txtDelkaDnaNadrz,
            .bottom_width_m = facility.txtSirkaDnaNadrz,
            .top_length_m = calc::tank::topSide(facility.txtDelkaDnaNadrz, facility.txtHloubkaNadrz,
                                                facility.txtSklonSvahuNadrz),
            .top_width_m = calc::tank::topSide(facility.txtSirkaDnaNadrz, facility.txtHloubkaNadrz,
                                               facility.txtSklonSvahuNadrz),
            .depth_m = facility.txtHloubkaNadrz};
        const double mean = calc::tank::meanInfiltrationFlow(
            shape, calc::tank::effectiveFiltration(site.filtration_m_s, facility.upstream_settling));
        return static_cast<double>(storage) + static_cast<double>(calc::tank::volume(shape)) + mean;
    });
}
BENCHMARK(Tank)->Name("Formulas/Tank");

}  // namespace
}  // namespace mero::design::bench
