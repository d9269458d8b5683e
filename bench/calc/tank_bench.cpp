// SPDX-License-Identifier: MIT
/// Measures a whole tank design, and for comparison the same formulas in a plain loop.
#include "calc/tank.h"

#include <benchmark/benchmark.h>

#include <cmath>

#include "calc/sites.h"

namespace mero::calc::bench {
namespace {

constexpr float kSpecificIntensity = 5.0F;
constexpr float kSlope = 1.5F;

void TankDesign(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const float flow = tank::infiltrationFlow(kSpecificIntensity, site.reduced_area_m2);
        benchmark::DoNotOptimize(tank::requiredStorage({.reduced_area_m2 = site.reduced_area_m2,
                                                        .infiltration_flow_m3_s = flow,
                                                        .safety_factor = site.safety_factor},
                                                       site.rains));
        const tank::Shape shape{.bottom_length_m = site.height_m,
                                .bottom_width_m = site.width_m,
                                .top_length_m = tank::topSide(site.height_m, site.height_m, kSlope),
                                .top_width_m = tank::topSide(site.width_m, site.height_m, kSlope),
                                .depth_m = site.height_m};
        benchmark::DoNotOptimize(tank::volume(shape));
        const double mean_flow =
            tank::meanInfiltrationFlow(shape, tank::effectiveFiltration(site.filtration_m_s, false));
        benchmark::DoNotOptimize(tank::judgeInfiltration(mean_flow, flow));
    });
}
BENCHMARK(TankDesign);

void TankDesignByHand(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const double area = site.reduced_area_m2;
        const double factor = site.safety_factor;
        const auto stored_flow = static_cast<float>(1e-7 * static_cast<double>(kSpecificIntensity) * area);
        const double flow = stored_flow;
        Found found;
        for (int k = 0; k < 9; ++k) {
            const Rain& rain = site.rains[static_cast<std::size_t>(k)];
            const double volume = (1e-7 * area * static_cast<double>(rain.intensity_l_s_ha) - flow) *
                                  static_cast<double>(rain.duration_min) * 60.0 * factor;
            if (volume > found.maximum) {
                found = {volume, k};
            }
        }
        benchmark::DoNotOptimize(found);
        const double length = site.height_m;
        const double width = site.width_m;
        const double depth = site.height_m;
        const double run = 2.0 * depth * static_cast<double>(kSlope);
        const double top_length = static_cast<double>(static_cast<float>(run + length));
        const double top_width = static_cast<double>(static_cast<float>(run + width));
        benchmark::DoNotOptimize(static_cast<float>(
            depth / 3.0 *
            (top_length * top_width + length * width + std::sqrt(top_length * length * width * top_width))));
        const double kf = static_cast<double>(site.filtration_m_s) / 5.0;
        benchmark::DoNotOptimize((width * length * kf / 2.0 + top_width * top_length * kf / 2.0) / 2.0 >=
                                 flow);
    });
}
BENCHMARK(TankDesignByHand);

}  // namespace
}  // namespace mero::calc::bench
