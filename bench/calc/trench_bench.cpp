// SPDX-License-Identifier: MIT
/// Measures the length of a trench, alone and under a swale,
/// and for comparison the same formulas in a plain loop.
#include "calc/trench.h"

#include <benchmark/benchmark.h>

#include "calc/sites.h"
#include "calc/swale_trench.h"
#include "platform/numbers/checked.h"

namespace mero::calc::bench {
namespace {

constexpr float kPorosity = 0.35F;
constexpr float kSwaleVolume = 5.0F;

void TrenchDesign(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const trench::Balance balance{.reduced_area_m2 = site.reduced_area_m2,
                                      .safety_factor = site.safety_factor,
                                      .section = {.width_m = site.width_m,
                                                  .height_m = site.height_m,
                                                  .storage_coefficient = kPorosity,
                                                  .filtration_m_s = site.filtration_m_s}};
        const CriticalRain found = trench::requiredLength(balance, site.rains);
        const float length = numbers::toSingle(found.maximum);
        benchmark::DoNotOptimize(trench::storageVolume(balance, length, found.rain.value_or(Rain{})));
        benchmark::DoNotOptimize(trench::infiltrationArea(site.height_m, site.width_m, length));
    });
}
BENCHMARK(TrenchDesign);

void TrenchDesignByHand(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const double area = site.reduced_area_m2;
        const double factor = site.safety_factor;
        const double width = site.width_m;
        const double height = site.height_m;
        const double kf = site.filtration_m_s;
        const double pores = width * height * static_cast<double>(kPorosity);
        const double soaked = (width + height / 2.0) * kf / 2.0;
        Found found;
        for (int k = 0; k < 9; ++k) {
            const Rain& rain = site.rains[static_cast<std::size_t>(k)];
            if (rain.duration_min <= 0.0F) {
                continue;
            }
            const double seconds = static_cast<double>(rain.duration_min) * 60.0 * factor;
            const double length =
                1e-7 * area * static_cast<double>(rain.intensity_l_s_ha) / (pores / seconds + soaked);
            if (length > found.maximum) {
                found = {length, k};
            }
        }
        const Rain rain = found.row < 0 ? Rain{} : site.rains[static_cast<std::size_t>(found.row)];
        const double length = static_cast<double>(static_cast<float>(found.maximum));
        const double volume = (1e-7 * area * static_cast<double>(rain.intensity_l_s_ha) -
                               (height / 2.0 + width) * length * kf / 2.0) *
                              static_cast<double>(rain.duration_min) * 60.0 * factor;
        benchmark::DoNotOptimize(static_cast<float>(volume));
        benchmark::DoNotOptimize(static_cast<float>((height / 2.0 + width) * length));
    });
}
BENCHMARK(TrenchDesignByHand);

void CombinedLength(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        benchmark::DoNotOptimize(
            swale_trench::trenchLength({.reduced_area_m2 = site.reduced_area_m2,
                                        .infiltration_area_m2 = site.reduced_area_m2 * 0.125F,
                                        .throttled_m3_s = 0.0F,
                                        .swale_volume_m3 = kSwaleVolume,
                                        .safety_factor = site.safety_factor,
                                        .trench = {.width_m = site.width_m,
                                                   .height_m = site.height_m,
                                                   .storage_coefficient = kPorosity,
                                                   .filtration_m_s = site.filtration_m_s}},
                                       site.rains));
    });
}
BENCHMARK(CombinedLength);

void CombinedLengthByHand(benchmark::State& state) {
    overSites(state, [](const Site& site) {
        const double factor = site.safety_factor;
        const double width = site.width_m;
        const double height = site.height_m;
        const double collected =
            (static_cast<double>(site.reduced_area_m2) + static_cast<double>(site.reduced_area_m2 * 0.125F)) *
            1e-7;
        const double pores = width * height * static_cast<double>(kPorosity);
        const double soaked = (width + height / 2.0) * static_cast<double>(site.filtration_m_s) / 2.0;
        Found found;
        for (int k = 0; k < 9; ++k) {
            const Rain& rain = site.rains[static_cast<std::size_t>(k)];
            if (rain.duration_min <= 0.0F) {
                continue;
            }
            const double seconds = static_cast<double>(rain.duration_min) * 60.0 * factor;
            const double length = (collected * static_cast<double>(rain.intensity_l_s_ha) -
                                   static_cast<double>(kSwaleVolume) / seconds) /
                                  (pores / seconds + soaked);
            if (length > found.maximum) {
                found = {length, k};
            }
        }
        benchmark::DoNotOptimize(found);
    });
}
BENCHMARK(CombinedLengthByHand);

}  // namespace
}  // namespace mero::calc::bench
