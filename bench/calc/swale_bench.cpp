// SPDX-License-Identifier: MIT
/// Measures a whole swale design, and for comparison the same formulas in a plain loop.
#include "calc/swale.h"

#include <benchmark/benchmark.h>

#include "calc/sites.h"
#include "platform/numbers/checked.h"

namespace mero::calc::bench {
namespace {

void SwaleDesign(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const float area = swale::startingArea(site.reduced_area_m2, 0, 0.0F);
        const CriticalRain storage = swale::storageVolume({.reduced_area_m2 = site.reduced_area_m2,
                                                           .infiltration_area_m2 = area,
                                                           .filtration_m_s = site.filtration_m_s,
                                                           .safety_factor = site.safety_factor},
                                                          site.rains);
        const float depth = swale::pondingDepth(numbers::toSingle(storage.maximum), area);
        benchmark::DoNotOptimize(storage);
        benchmark::DoNotOptimize(swale::emptyingTimeHours(depth, site.filtration_m_s));
    });
}
BENCHMARK(SwaleDesign);

void SwaleDesignByHand(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const auto area = static_cast<float>(0.1 * static_cast<double>(site.reduced_area_m2));
        const double collected =
            (static_cast<double>(site.reduced_area_m2) + static_cast<double>(area)) * 1e-7;
        const double soaked = static_cast<double>(area) * static_cast<double>(site.filtration_m_s) / 2.0;
        Found found;
        for (int k = 0; k < 9; ++k) {
            const Rain& rain = site.rains[static_cast<std::size_t>(k)];
            const double volume = (collected * static_cast<double>(rain.intensity_l_s_ha) - soaked) *
                                  static_cast<double>(rain.duration_min) * 60.0 *
                                  static_cast<double>(site.safety_factor);
            if (volume > found.maximum) {
                found = {volume, k};
            }
        }
        const auto volume = static_cast<float>(found.maximum);
        const auto depth = static_cast<float>(static_cast<double>(volume) / static_cast<double>(area));
        benchmark::DoNotOptimize(found);
        benchmark::DoNotOptimize(static_cast<float>(2.0 * static_cast<double>(depth) /
                                                    static_cast<double>(site.filtration_m_s) / 3600.0));
    });
}
BENCHMARK(SwaleDesignByHand);

}  // namespace
}  // namespace mero::calc::bench
