// SPDX-License-Identifier: MIT
/// Sites for the benchmarks of the design formulas: many different ones, the same in every run.
/// Each benchmark is compared with a hand-written loop of the same formulas without checks.
#pragma once

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>

#include "calc/rain.h"

namespace mero::calc::bench {

inline constexpr std::size_t kSites = 256;

/// Values that differ between sites; the shares keep them in the range that engineers enter.
struct Site {
    float reduced_area_m2;
    float filtration_m_s;
    float safety_factor;
    float width_m;
    float height_m;
    std::array<Rain, kRainRows> rains;
};

inline std::array<Site, kSites> makeSites() {
    constexpr std::array<float, kRainRows> kMinutes{5.0F,  10.0F, 15.0F, 20.0F, 30.0F,
                                                    45.0F, 60.0F, 90.0F, 120.0F};
    constexpr std::array<float, kRainRows> kIntensities{300.0F, 200.0F, 150.0F, 120.0F, 90.0F,
                                                        65.0F,  50.0F,  36.0F,  28.0F};
    std::array<Site, kSites> sites{};
    for (std::size_t n = 0; n < kSites; ++n) {
        const auto share = static_cast<float>(n) / static_cast<float>(kSites);
        Site& site = sites[n];
        site.reduced_area_m2 = 100.0F + 5000.0F * share;
        site.filtration_m_s = 1e-6F + 1e-4F * (1.0F - share);
        site.safety_factor = 1.0F + 0.5F * share;
        site.width_m = 0.5F + share;
        site.height_m = 1.0F + 2.0F * share;
        for (std::size_t k = 0; k < kRainRows; ++k) {
            site.rains[k] = {.duration_min = kMinutes[k],
                             .intensity_l_s_ha = kIntensities[k] * (0.5F + share)};
        }
    }
    return sites;
}

/// Runs `design` over the sites, one per iteration.
template <typename Design>
void overSites(benchmark::State& state, Design design) {
    const auto sites = makeSites();
    std::size_t n = 0;
    for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores): the library's way of counting
        design(sites[n++ % kSites]);
    }
    state.SetItemsProcessed(state.iterations());
}

/// Result of the hand-written loops: the maximum and its row, -1 for none.
struct Found {
    double maximum = 0.0;
    int row = -1;
};

}  // namespace mero::calc::bench
