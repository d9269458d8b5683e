// SPDX-License-Identifier: MIT
// Measures one keystroke in each text box of the main window, without the window system.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "data/rain_database.h"
#include "forms/calc/program.h"
#include "platform/clock.h"
#include "platform/locale_settings.h"
#include "platform/numbers/number_text.h"
#include "support/recording_desk.h"

namespace {

using namespace mero;

/// One station with the same heavy rain in every row.
class OneRain : public data::RainDatabase {
  public:
    data::StationTable read(std::int16_t /*station_number*/, const std::string& /*path*/) override {
        data::StationTable table;
        table.columns = {"doba", "5", "2", "1", "05", "02", "01", "005"};
        table.rows.assign(9, std::vector<data::StationTable::Value>(8, 150.0));
        return table;
    }
};

/// A program with rain, area and soil entered, and one type chosen.
struct Site {
    test::RecordingDesk desk;
    platform::SystemClock clock;
    platform::ProgramLocale locale{".", "", ","};
    OneRain rain;
    forms::Program program{{desk, clock, locale, rain, "."}};

    explicit Site(data::FacilityType type) {
        program.start();
        forms::frmCalc& window = program.window();
        window.cmdEdit[0].userClick();
        window.intDialog.cboSelStanice.userSelect(4);
        window.intDialog.cboSelPeriod.userSelect(4);
        window.intDialog.fgIntDeste.userClick({3, 2});
        window.intDialog.cmdOK.userClick();
        window.cmdEdit[1].userClick();
        window.areaDialog.fgSoucPovrchOdtok.userClick({8, 3});
        window.areaDialog.txtPlocha.userEdit("800");
        window.areaDialog.cmdZapsat.userClick();
        window.areaDialog.OKButton.userClick();
        window.txtSoucFiltrace.userEdit("1e-4");
        window.optSelType[type == data::FacilityType::Tank ? 1 : 0].userClick();
        window.cboSelType.userSelect(type == data::FacilityType::Tank ? 0 : static_cast<int>(type));
    }
};

void typeInto(benchmark::State& state, Site& site, platform::TextBox& box) {
    constexpr unsigned kKeysPerPause = 1024;
    unsigned keys = 0;
    for (auto _ : state) {
        const bool longer = ++keys % 2 == 1;
        site.program.enter([&] { box.userEdit(longer ? "2.5" : "2"); });
        // What was recorded must not fill the memory; clearing it after each key would be measured too.
        if (keys % kKeysPerPause == 0) {
            site.desk.forget();
        }
    }
}

/// One benchmark for every text box on the first tab or on the type's panel.
void registerFields(Site& site, data::FacilityType type) {
    for (platform::Control* control : site.program.window().controls()) {
        auto* box = dynamic_cast<platform::TextBox*>(control);
        if (box == nullptr || !box->container()->visible() || !box->enabled()) {
            continue;
        }
        const std::string name = "type " + numbers::general(static_cast<int>(type)) + " " + box->name();
        benchmark::RegisterBenchmark(name.c_str(), [&site, box](benchmark::State& state) {
            typeInto(state, site, *box);
        })->Unit(benchmark::kMicrosecond);
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    std::vector<std::unique_ptr<Site>> sites;
    for (const data::FacilityType type : data::kFacilityTypes) {
        sites.push_back(std::make_unique<Site>(type));
        registerFields(*sites.back(), type);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
