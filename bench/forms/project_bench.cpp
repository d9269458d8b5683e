// SPDX-License-Identifier: MIT
// Measures the state of a window, and saving and opening a project with 200 areas.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "forms/keeping/project_file.h"
#include "forms/keeping/quiet_program.h"

namespace {

using namespace mero;

class NoRain : public data::RainDatabase {
  public:
    data::StationTable read(std::int16_t /*station_number*/, const std::string& /*path*/) override {
        return {};
    }
};

struct Site {
    NoRain rain;
    forms::QuietProgram quiet{rain, "."};

    Site() {
        constexpr int kAreas = 200;
        forms::frmCalc& window = quiet.program().window();
        window.cmdEdit[1].userClick();
        for (int area = 0; area < kAreas; ++area) {
            window.areaDialog.fgSoucPovrchOdtok.userClick({1 + area % 19, 3});
            window.areaDialog.txtPlocha.userEdit("123.4");
            window.areaDialog.cmdZapsat.userClick();
        }
        window.areaDialog.OKButton.userClick();
        window.txtSoucFiltrace.userEdit("1e-4");
        window.optSelType[0].userClick();
        window.cboSelType.userSelect(4);
        window.txtSirkaRyhy[4].userEdit("1.2");
        window.txtVyskaRyhy[4].userEdit("1.5");
        window.cmdCalcul[4].userClick();
    }
};

Site& site() {
    static Site the_site;
    return the_site;
}

std::string path() {
    return (std::filesystem::temp_directory_path() / "mero-project-bench.json").string();
}

void stateOf(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(forms::stateOf(site().quiet.program()));
    }
}

void restoreState(benchmark::State& state) {
    const forms::WindowState kept = forms::stateOf(site().quiet.program());
    for (auto _ : state) {
        forms::restore(site().quiet.program(), kept);
    }
}

void saveProject(benchmark::State& state) {
    const forms::WindowState kept = forms::stateOf(site().quiet.program());
    for (auto _ : state) {
        forms::saveProject(path(), kept, "");
    }
}

void writeText(benchmark::State& state) {
    const forms::WindowState kept = forms::stateOf(site().quiet.program());
    for (auto _ : state) {
        benchmark::DoNotOptimize(forms::projectText(kept, ""));
    }
}

void openProject(benchmark::State& state) {
    forms::saveProject(path(), forms::stateOf(site().quiet.program()), "");
    for (auto _ : state) {
        benchmark::DoNotOptimize(forms::openProject(path(), {site().rain, "."}));
    }
}

BENCHMARK(stateOf)->Unit(benchmark::kMicrosecond);
BENCHMARK(restoreState)->Unit(benchmark::kMicrosecond);
BENCHMARK(writeText)->Unit(benchmark::kMillisecond);
BENCHMARK(saveProject)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(openProject)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
