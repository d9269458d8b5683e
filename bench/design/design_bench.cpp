// SPDX-License-Identifier: MIT
/// Measures whole designs per second, type by type: the window's results without the window.
/// Each project enters a safety factor, so the pages that calculate live do so for every change.
#include "design/design.h"

#include <benchmark/benchmark.h>

#include <cstddef>

#include "design/designs.h"

namespace mero::design::bench {
namespace {

template <FacilityType type>
void Design(benchmark::State& state) {
    const auto projects = makeProjects(type);
    std::size_t n = 0;
    for (auto _ : state) {
        const Project& project = projects[n++ % projects.size()];
        benchmark::DoNotOptimize(design(project.site, project.facility));
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Design<FacilityType::Surface>)->Name("Design/Surface");
BENCHMARK(Design<FacilityType::Swale>)->Name("Design/Swale");
BENCHMARK(Design<FacilityType::SwaleTrench>)->Name("Design/SwaleTrench");
BENCHMARK(Design<FacilityType::Trench>)->Name("Design/Trench");
BENCHMARK(Design<FacilityType::Shaft>)->Name("Design/Shaft");
BENCHMARK(Design<FacilityType::Tank>)->Name("Design/Tank");

}  // namespace
}  // namespace mero::design::bench
