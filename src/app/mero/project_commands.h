// SPDX-License-Identifier: MIT
/// The commands of the menu bar: the project and its file, undo and redo, results, help.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "app/mero/project_files.h"
#include "app/mero/qt_desk.h"
#include "data/rain_database.h"
#include "forms/calc/layout/calc_window.h"
#include "forms/calc/program.h"
#include "forms/keeping/project_work.h"
#include "qt/menu_bar.h"
#include "qt/widget_kit.h"

namespace mero::app {

class ProjectCommands : public QObject {
  public:
    /// What the commands work on; all of it outlives them.
    struct Place {
        forms::Program& program;
        qt::WidgetKit& kit;
        forms::CalcWindow& window;
        QtDesk& desk;
        data::RainDatabase& rain_database;
        const char* version;
    };

    explicit ProjectCommands(const Place& place) : place_(place) {}

    /// For the window, before it is opened.
    [[nodiscard]] std::vector<qt::Menu> menus();
    /// The window was opened: the commands can be used.
    void begin(forms::ProjectWork& work, const KeepingPlaces& places);
    [[nodiscard]] ProjectFiles& files() { return *files_; }

  private:
    [[nodiscard]] qt::Menu projectMenu();
    [[nodiscard]] qt::Menu editMenu();
    [[nodiscard]] qt::Menu helpMenu();

    [[nodiscard]] std::vector<qt::MenuEntry> usedLast();
    void undo();
    void redo();
    void print();
    void copyResults();
    void about();

    [[nodiscard]] bool hasType() const;
    [[nodiscard]] qt::EntryLook stepLook(const char* command, const std::optional<std::string>& step) const;
    /// Goes to the field where a step was taken, and to its tab.
    void leadTo(const forms::History::Step& step);
    /// Something may have changed: the title follows soon.
    void notice();
    void showTitle();

    Place place_;
    forms::ProjectWork* work_ = nullptr;
    std::optional<ProjectFiles> files_;
    QTimer title_timer_;
};

}  // namespace mero::app
