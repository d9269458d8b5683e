// SPDX-License-Identifier: MIT
// Measures the time from entering the results tab until the report is written, without a view (target: 20
// ms). The drained area has twenty entries.
#include <benchmark/benchmark.h>

#include "report/results_tab.h"

namespace {

void enterResults(benchmark::State& state) {
    mero::bench::ResultsTab tab;
    tab.start(static_cast<mero::data::FacilityType>(state.range(0)));
    for (auto _ : state) {
        tab.enter();
    }
}
BENCHMARK(enterResults)->DenseRange(1, mero::data::kFacilityTypes.size())->Unit(benchmark::kMillisecond);

}  // namespace
