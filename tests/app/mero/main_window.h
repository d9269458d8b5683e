// SPDX-License-Identifier: MIT
/// The whole main window with a program without files, driven by a script or by a person's events.
#pragma once

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "app/mero/project_commands.h"
#include "app/mero/qt_desk.h"
#include "app/mero/qt_user.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "forms/calc/layout/calc_window.h"
#include "forms/keeping/project_work.h"
#include "platform/locale_settings.h"
#include "qt/texts.h"

namespace mero::app {

/// One rain for every station.
class OneRain : public data::RainDatabase {
  public:
    [[nodiscard]] data::StationTable read(std::int16_t /*station*/, const std::string& /*path*/) override {
        data::StationTable table;
        table.columns = {"doba", "5", "2", "1", "05", "02", "01", "005"};
        for (const double minutes : {5, 10, 15, 20, 30, 45, 60, 90, 120}) {
            table.rows.push_back({minutes, 100., 200., 300., 400., 500., 600., 700.});
        }
        return table;
    }
};

class MainWindow : public testing::Test {
  protected:
    explicit MainWindow(qt::FocusEvents focus_events = qt::FocusEvents::RunNothing)
        : focus_events_(focus_events) {
        window.setMenus(commands.menus());
    }

    qt::FocusEvents focus_events_;
    std::ostringstream trace;
    std::ostringstream diagnostics;
    QtDesk real_desk{Sitter::Script, [](std::string_view bytes) { return std::string(bytes); }};
    automation::TraceDesk desk{trace, &real_desk, "/nonexistent"};
    platform::FrozenClock clock{{2026, 11, 20, 14, 5, 9}};
    platform::ProgramLocale locale{",", " ", ";"};
    OneRain rain;
    forms::Program program{{desk, clock, locale, rain, "/nonexistent"}};
    qt::WidgetKit kit{[this](const std::function<void()>& event) { program.enter(event); }, focus_events_};
    forms::CalcWindow window{
        kit, program.window(), {[](std::string_view bytes) { return std::string(bytes); }, {}}};
    std::optional<forms::ProjectWork> work;
    KeepingPlaces places;  ///< nothing is kept, unless a test sets it before SetUp()
    ProjectCommands commands{{program, kit, window, real_desk, rain, "1.0.0"}};
    QtUser user{program, kit};
    automation::ScriptRunner runner{program, user, desk, diagnostics, "test"};

    void SetUp() override {
        program.start();
        commands.begin(work.emplace(program, forms::ProjectSource{rain, "/nonexistent"}), places);
        runner.workOn(*work);
    }
    void run(std::string_view line) {
        ASSERT_NE(runner.execute(line, 1), automation::ScriptRunner::Step::Unusable) << diagnostics.str();
    }
    void run(std::initializer_list<const char*> lines) {
        for (const char* line : lines) {
            run(std::string_view(line));
        }
    }
    /// Opens every tab, panel and dialog once.
    void showAll() {
        run({"click cmdEdit(0)", "close frmIntDialog", "click cmdEdit(1)", "close frmDialog",
             "click cmdEdit(2)", "close frmCoefDialog", "tab 1", "click optSelType(0)", "select cboSelType 4",
             "tab 2", "tab 3", "tab 0"});
    }
    /// All captions of labels, buttons and frames, without line breaks.
    [[nodiscard]] std::vector<std::string> captions() const {
        std::vector<std::string> texts;
        for (const auto* label : window.findChildren<QLabel*>()) {
            texts.push_back(unmarked(QString(label->text()).replace('\n', ' ')));
        }
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            texts.push_back(unmarked(button->text()));
        }
        for (const auto* box : window.findChildren<QGroupBox*>()) {
            texts.push_back(qt::stored(box->title()));
        }
        return texts;
    }
    /// A caption without its mnemonic mark.
    [[nodiscard]] static std::string unmarked(QString caption) {
        return qt::stored(caption.replace("&&", "\1").remove('&').replace('\1', "&"));
    }
    template <typename Widget>
    [[nodiscard]] Widget& widget(std::string_view name) {
        auto* found = dynamic_cast<Widget*>(kit.find(*program.window().find(name)));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
};

}  // namespace mero::app
