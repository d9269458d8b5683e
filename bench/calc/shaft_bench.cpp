// SPDX-License-Identifier: MIT
/// Measures a whole shaft design, without the rounding by fields,
/// and for comparison the same formulas in a plain loop.
#include "calc/shaft.h"

#include <benchmark/benchmark.h>

#include "calc/sites.h"
#include "platform/numbers/checked.h"

namespace mero::calc::bench {
namespace {

constexpr float kInletDepth = 1.2F;
constexpr float kFilterLayer = 0.5F;
constexpr float kSeepagePath = 1.5F;

void ShaftDesign(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const shaft::Balance balance{
            .reduced_area_m2 = site.reduced_area_m2,
            .filtration_m_s = site.filtration_m_s,
            .safety_factor = site.safety_factor,
            .shafts = {.count = 2, .outer_diameter_m = site.height_m, .inner_diameter_m = site.width_m}};
        const CriticalRain found = shaft::waterLevel(balance, site.rains);
        const float level = numbers::toSingle(found.maximum);
        const float area = shaft::infiltrationArea(balance.shafts, level);
        benchmark::DoNotOptimize(shaft::depth(level, {.inlet_depth_m = kInletDepth,
                                                      .filter_layer_m = kFilterLayer,
                                                      .sand_layer_m = 0.0F,
                                                      .has_sand_layer = false}));
        benchmark::DoNotOptimize(shaft::requiredEmbedding(kInletDepth, level, kSeepagePath));
        benchmark::DoNotOptimize(shaft::storageVolume(balance, area, found.rain.value_or(Rain{})));
        benchmark::DoNotOptimize(
            shaft::requiredFilterPermeability(level, balance.shafts, site.filtration_m_s));
    });
}
BENCHMARK(ShaftDesign);

void ShaftDesignByHand(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const double area = site.reduced_area_m2;
        const double kf = site.filtration_m_s;
        const double factor = site.safety_factor;
        const double outer = 2.0 * static_cast<double>(site.height_m);
        const double inner = 2.0 * static_cast<double>(site.width_m);
        const double soaked = kPi * (outer * outer) / 4.0 * (kf / 2.0);
        const double sections = kPi * (inner * inner);
        const double wall = outer * kPi * kf / 4.0;
        Found found;
        for (int k = 0; k < 9; ++k) {
            const Rain& rain = site.rains[static_cast<std::size_t>(k)];
            if (rain.duration_min <= 0.0F) {
                continue;
            }
            const double level =
                (1e-7 * area * static_cast<double>(rain.intensity_l_s_ha) - soaked) /
                (sections / (static_cast<double>(rain.duration_min) * 4.0 * 60.0 * factor) + wall);
            if (level > found.maximum) {
                found = {level, k};
            }
        }
        const Rain rain = found.row < 0 ? Rain{} : site.rains[static_cast<std::size_t>(found.row)];
        const double level = static_cast<double>(static_cast<float>(found.maximum));
        const auto infiltration = static_cast<float>(kPi * (outer * outer) / 4.0 + kPi * level / 2.0);
        const double one_outer = site.height_m;
        const double one_inner = site.width_m;
        benchmark::DoNotOptimize(
            static_cast<float>(static_cast<double>(kInletDepth) + level + static_cast<double>(kFilterLayer)));
        benchmark::DoNotOptimize(
            static_cast<float>(static_cast<double>(kInletDepth) + level + static_cast<double>(kSeepagePath)));
        benchmark::DoNotOptimize(
            static_cast<float>((1e-7 * area * static_cast<double>(rain.intensity_l_s_ha) -
                                kf * static_cast<double>(infiltration) / 2.0) *
                               static_cast<double>(rain.duration_min) * factor));
        benchmark::DoNotOptimize(static_cast<float>((one_outer * one_outer + 2.0 * level * one_outer) /
                                                    (one_inner * one_inner) * kf));
    });
}
BENCHMARK(ShaftDesignByHand);

}  // namespace
}  // namespace mero::calc::bench
