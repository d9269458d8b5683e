// SPDX-License-Identifier: MIT
/// Opens and saves projects for a person: dialogs, questions, messages, the files used last, recovery copies.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "app/keeping/preferences.h"
#include "app/mero/qt_desk.h"
#include "app/mero/work_keeper.h"
#include "forms/calc/layout/calc_window.h"
#include "forms/calc/program.h"
#include "forms/keeping/project_work.h"
#include "qt/widget_kit.h"

namespace mero::app {

/// Where things are kept between runs; "" keeps nothing.
struct KeepingPlaces {
    std::string preferences_file;
    std::string recovery_folder;
};

class ProjectFiles : public QObject {
  public:
    struct Place {
        forms::Program& program;
        qt::WidgetKit& kit;
        forms::CalcWindow& window;
        QtDesk& desk;
    };

    ProjectFiles(const Place& place, forms::ProjectWork& work, KeepingPlaces places);

    /// Called when the project's file, or what is unsaved, may have changed.
    std::function<void()> changed;

    void startNew();
    /// Asks for the file.
    void open();
    void open(const QString& path);
    void save();
    void saveAs();
    /// The files used last, the latest first.
    [[nodiscard]] std::vector<std::string> usedLast() const;

    /// The user does something: a copy of what is unsaved follows.
    void notice();
    /// The program ends: what is unsaved is on the disk afterwards.
    void finish();
    /// Offers what programs before have lost, if anything, in a line above the tabs.
    void offerLost();

  private:
    void show(const QString& path, const std::vector<std::string>& remarks);
    [[nodiscard]] bool saveTo(const QString& path);
    [[nodiscard]] QString suggestedPath() const;
    [[nodiscard]] QString folder() const;
    void fail(const std::exception& error);
    void remember(const QString& path);
    void offerNext();
    void recover();
    void discard();

    Place place_;
    forms::ProjectWork* work_;
    KeepingPlaces places_;
    WorkKeeper keeper_;
    QTimer keep_timer_;
};

}  // namespace mero::app
