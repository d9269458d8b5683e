// SPDX-License-Identifier: MIT
// Measures the time from entering the results tab until the report is painted in the window (target: 150 ms).
// The window is painted into memory unless the environment sets another window system.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "forms/calc/layout/calc_window.h"
#include "platform/numbers/numeric_locale.h"
#include "report/results_tab.h"
#include "report/view_html.h"

namespace {

using namespace mero;

void enterAndPaint(benchmark::State& state) {
    bench::ResultsTab tab;
    qt::WidgetKit kit([&tab](const std::function<void()>& event) { tab.program.enter(event); },
                      qt::FocusEvents::RunHandlers);
    forms::CalcWindow window(kit, tab.program.window(), {report::viewHtml, [](const std::string&) {}});
    tab.start(static_cast<data::FacilityType>(state.range(0)));
    QApplication::processEvents();
    for (auto _ : state) {
        tab.enter();
        benchmark::DoNotOptimize(window.grab());
    }
    window.hide();
}
BENCHMARK(enterAndPaint)->DenseRange(1, data::kFacilityTypes.size())->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    numbers::useNumericCLocale();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
