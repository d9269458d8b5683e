// SPDX-License-Identifier: MIT
/// Each command is an event of the user, as a click on a button is.
#include "app/mero/project_commands.h"

#include <QDir>
#include <QFileInfo>

#include "app/mero/about_box.h"
#include "forms/calc/layout/result_rows.h"
#include "platform/numbers/runtime_error.h"
#include "qt/file_drop.h"
#include "qt/texts.h"

namespace mero::app {
namespace {

/// The title follows a change after this time, so that keys in a row take no time for it.
constexpr int kTitleDelayMs = 300;

using qt::EntryLook;
using qt::Menu;
using qt::MenuEntry;
using qt::separator;

/// The file's name, and its folder, in which the home is "~".
QString menuText(const QString& path) {
    const QFileInfo file(path);
    QString folder = file.absolutePath();
    if (folder.startsWith(QDir::homePath() + QLatin1Char('/'))) {
        folder = QLatin1Char('~') + folder.mid(QDir::homePath().size());
    }
    return qt::captionText(qt::stored(file.fileName() + QStringLiteral(" – ") + folder));
}

}  // namespace

std::vector<Menu> ProjectCommands::menus() {
    return {projectMenu(), editMenu(), helpMenu()};
}

Menu ProjectCommands::projectMenu() {
    return {QStringLiteral("Pro&jekt"),
            {
                {"new",
                 QStringLiteral("&Nový"),
                 {QKeySequence(Qt::CTRL | Qt::Key_N)},
                 [this] { files_->startNew(); }},
                {"open",
                 QStringLiteral("&Otevřít…"),
                 {QKeySequence(Qt::CTRL | Qt::Key_O)},
                 [this] { files_->open(); }},
                {"usedLast",
                 QStringLiteral("Naposledy otev&řené"),
                 {},
                 {},
                 [this] { return EntryLook{!files_->usedLast().empty()}; },
                 [this] { return usedLast(); }},
                separator(),
                {"save",
                 QStringLiteral("&Uložit"),
                 {QKeySequence(Qt::CTRL | Qt::Key_S)},
                 [this] { files_->save(); }},
                {"saveAs",
                 QStringLiteral("Uložit &jako…"),
                 {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
                 [this] { files_->saveAs(); }},
                separator(),
                {"print",
                 QStringLiteral("&Tisk…"),
                 {QKeySequence(Qt::CTRL | Qt::Key_P)},
                 [this] { print(); },
                 [this] { return EntryLook{hasType()}; }},
                separator(),
                {"quit", QStringLiteral("&Konec"), {}, [this] { place_.window.close(); }},
            }};
}

Menu ProjectCommands::editMenu() {
    return {QStringLiteral("Úprav&y"),
            {
                {"undo",
                 QStringLiteral("&Zpět"),
                 {QKeySequence(Qt::CTRL | Qt::Key_Z)},
                 [this] { undo(); },
                 [this] { return stepLook("&Zpět", work_->history().undoName()); }},
                {"redo",
                 QStringLiteral("Zno&vu"),
                 {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)},
                 [this] { redo(); },
                 [this] { return stepLook("Zno&vu", work_->history().redoName()); }},
                separator(),
                {"copyResults",
                 QStringLiteral("&Kopírovat výsledky"),
                 {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)},
                 [this] { copyResults(); },
                 [this] { return EntryLook{hasType()}; }},
            }};
}

Menu ProjectCommands::helpMenu() {
    return {QStringLiteral("&Nápověda"),
            {
                // The key is the window's: it works in the dialogs too.
                {"manual", QStringLiteral("&Příručka\tF1"), {}, [this] { place_.window.showHelp(); }},
                {"about", QStringLiteral("&O programu"), {}, [this] { about(); }},
            }};
}

std::vector<MenuEntry> ProjectCommands::usedLast() {
    std::vector<MenuEntry> entries;
    for (const std::string& file : files_->usedLast()) {
        const QString path = qt::shown(file);
        entries.push_back({path, menuText(path), {}, [this, path] { files_->open(path); }});
    }
    return entries;
}

void ProjectCommands::begin(forms::ProjectWork& work, const KeepingPlaces& places) {
    work_ = &work;
    files_.emplace(ProjectFiles::Place{place_.program, place_.kit, place_.window, place_.desk}, work, places);
    files_->changed = [this] { showTitle(); };
    title_timer_.setSingleShot(true);
    connect(&title_timer_, &QTimer::timeout, this, [this] { showTitle(); });
    work.acted = [this] { notice(); };
    qt::takeDroppedFiles(place_.window, [this](const QString& path) {
        if (place_.program.window().enabled()) {  // no dialog is open
            files_->open(path);
        }
    });
}

void ProjectCommands::notice() {
    if (!title_timer_.isActive()) {
        title_timer_.start(kTitleDelayMs);
        files_->notice();
    }
}

void ProjectCommands::showTitle() {
    const forms::OpenProject& project = work_->project();
    const bool changed = work_->changed();
    QString title = qt::shown(place_.program.window().title());
    if (!project.path.empty() || changed) {
        title +=
            QStringLiteral(" – ") + (project.path.empty() ? QStringLiteral("bez názvu")
                                                          : QFileInfo(qt::shown(project.path)).fileName());
        title += changed ? QStringLiteral(" *") : QString();
    }
    place_.window.setWindowTitle(title);
}

bool ProjectCommands::hasType() const {
    return place_.program.window().SelectedType != forms::FacilityType::None;
}

EntryLook ProjectCommands::stepLook(const char* command, const std::optional<std::string>& step) const {
    if (!step) {
        return {false};
    }
    return {true, QString::fromUtf8(command) + QStringLiteral(": ") + qt::captionText(*step)};
}

void ProjectCommands::undo() {
    place_.kit.enter([this] {
        if (const auto step = work_->history().undo()) {
            leadTo(*step);
        }
    });
    files_->notice();
    showTitle();
}

void ProjectCommands::redo() {
    place_.kit.enter([this] {
        if (const auto step = work_->history().redo()) {
            leadTo(*step);
        }
    });
    files_->notice();
    showTitle();
}

void ProjectCommands::leadTo(const forms::History::Step& step) {
    forms::frmCalc& window = place_.program.window();
    if (step.control == nullptr) {
        return;
    }
    const bool of_dialog = &step.control->form() != &window;
    int tab = forms::kTabInputs;
    for (const platform::Control* at = step.control; at != nullptr && !of_dialog; at = at->container()) {
        if (at == &window.SSTab1.page(forms::kTabDesign)) {
            tab = forms::kTabDesign;
        }
    }
    window.SSTab1.userSelect(tab);
    QWidget* field = of_dialog ? nullptr : place_.kit.find(*step.control);
    if (field != nullptr && field->isVisible() && field->isEnabled()) {
        qt::leadTo(*field);
    }
}

void ProjectCommands::print() {
    place_.kit.enter([this] {
        forms::frmCalc& window = place_.program.window();
        if (window.SSTab1.position() != forms::kTabResults) {
            window.SSTab1.userSelect(forms::kTabResults);
        }
        if (window.cmdPrint.onScreen() && window.cmdPrint.reachable()) {
            window.cmdPrint.userClick();
        }
    });
}

void ProjectCommands::copyResults() {
    const forms::frmCalc& window = place_.program.window();
    qt::copyRows(forms::resultRows(window, window.SelectedType));
    place_.window.tell(QStringLiteral("Výsledky jsou ve schránce."), {});
}

void ProjectCommands::about() {
    forms::Program& program = place_.program;
    DataInUse data{program.window().databasePath(),
                   static_cast<int>(program.values().StaniceNazev.size()) - 1, std::nullopt};
    try {
        data.demonstration =
            place_.rain_database.read(program.values().StaniceCislo(1), data.path).demonstration;
    } catch (const RuntimeError&) {
        data.demonstration = std::nullopt;
    }
    showAbout(&place_.window, QString::fromLatin1(place_.version), data);
}

}  // namespace mero::app
