// SPDX-License-Identifier: MIT
/// A program whose results tab is entered repeatedly, with rain, areas and soil, for any of the six types.
#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "data/rain_database.h"
#include "forms/calc/program.h"
#include "platform/clock.h"
#include "platform/locale_settings.h"
#include "support/recording_desk.h"

namespace mero::bench {

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

/// A temporary folder, removed at the end.
class Folder {
  public:
    Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "mero-bench-XXXXXX").string();
        path_ = mkdtemp(pattern.data());
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    [[nodiscard]] const std::string& path() const { return path_; }

  private:
    std::string path_;
};

struct ResultsTab {
    Folder folder;
    test::RecordingDesk desk;
    platform::SystemClock clock;
    platform::ProgramLocale locale{".", "", ","};
    OneRain rain;
    forms::Program program{{desk, clock, locale, rain, folder.path()}};

    /// Starts the program and enters all inputs of the type.
    void start(data::FacilityType type) {
        constexpr int kAreas = 20;
        program.start();
        forms::frmCalc& window = program.window();
        window.cmdEdit[0].userClick();
        window.intDialog.cboSelStanice.userSelect(4);
        window.intDialog.cboSelPeriod.userSelect(4);
        window.intDialog.fgIntDeste.userClick({3, 2});
        window.intDialog.cmdOK.userClick();
        window.cmdEdit[1].userClick();
        for (int i = 0; i < kAreas; ++i) {
            window.areaDialog.fgSoucPovrchOdtok.userClick({8, 3});
            window.areaDialog.txtPlocha.userEdit("40");
            window.areaDialog.cmdZapsat.userClick();
        }
        window.areaDialog.OKButton.userClick();
        window.txtSoucFiltrace.userEdit("1e-4");
        window.optSelType[type == data::FacilityType::Tank ? 1 : 0].userClick();
        if (type != data::FacilityType::Tank) {
            window.cboSelType.userSelect(static_cast<int>(type));
        }
    }

    /// Switches to the inputs and back to the results: the report is built, written and shown.
    void enter() {
        program.enter([this] {
            program.window().SSTab1.userSelect(forms::kTabInputs);
            program.window().SSTab1.userSelect(forms::kTabResults);
        });
        desk.forget();
    }
};

}  // namespace mero::bench
