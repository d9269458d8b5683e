// SPDX-License-Identifier: MIT
/// Nothing asks whether to save: what was worked on before comes back by undo, and is kept in a copy.
#include "app/mero/project_files.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <utility>

#include "app/mero/designer_hint.h"
#include "app/mero/project_dialogs.h"
#include "app/mero/save_dialog.h"
#include "app/mero/window_place.h"
#include "project/read_project.h"
#include "qt/missing_page.h"
#include "qt/texts.h"

namespace mero::app {
namespace {

using project::ProjectError;

/// No more than this of typing is lost when the program is ended by force.
constexpr int kKeepDelayMs = 3000;
constexpr int kMostShownRemarks = 30;

QString moment(std::time_t time) {
    // Independent of the computer's settings, as all that the program shows.
    return QDateTime::fromSecsSinceEpoch(time).toString(QStringLiteral("d. M. yyyy H:mm"));
}

QString fileName(const QString& path) {
    return QFileInfo(path).fileName();
}

}  // namespace

ProjectFiles::ProjectFiles(const Place& place, forms::ProjectWork& work, KeepingPlaces places)
    : place_(place),
      work_(&work),
      places_(std::move(places)),
      keeper_(place.program, work, places_.recovery_folder) {
    keep_timer_.setSingleShot(true);
    connect(&keep_timer_, &QTimer::timeout, this, [this] { keeper_.keep(); });
    hintDesigner(place_.kit, place_.program.window().txtProjektant,
                 qt::shown(readPreferences(places_.preferences_file).designer));
}

void ProjectFiles::notice() {
    if (!keep_timer_.isActive()) {
        keep_timer_.start(kKeepDelayMs);
    }
}

void ProjectFiles::finish() {
    keep_timer_.stop();
    keeper_.keepNow();
    if (!places_.preferences_file.empty()) {
        Preferences preferences = readPreferences(places_.preferences_file);
        preferences.place = placeOf(place_.window);
        writePreferences(places_.preferences_file, preferences);
    }
}

void ProjectFiles::startNew() {
    place_.kit.enter([this] {
        keeper_.keepNow();
        work_->startNew();
        place_.program.window().SSTab1.userSelect(forms::kTabInputs);
    });
    changed();
}

void ProjectFiles::open() {
    if (const auto path = askWhichProject(&place_.window, folder())) {
        open(*path);
    }
}

void ProjectFiles::open(const QString& path) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    place_.kit.enter([this, &whole] {
        keeper_.keepNow();
        try {
            show(whole, work_->open(qt::stored(whole)));
            remember(whole);
        } catch (const ProjectError& error) {
            fail(error);
        }
    });
    changed();
}

void ProjectFiles::show(const QString& path, const std::vector<std::string>& remarks) {
    place_.program.window().SSTab1.userSelect(forms::kTabInputs);
    if (remarks.empty()) {
        return;
    }
    QStringList lines;
    for (const std::string& remark : remarks) {
        lines += QStringLiteral("• ") + qt::shown(remark);
    }
    if (lines.size() > kMostShownRemarks) {
        const qsizetype more = lines.size() - kMostShownRemarks;
        lines.resize(kMostShownRemarks);
        lines += QStringLiteral("… a další: %1").arg(more);
    }
    const QString text = QStringLiteral("%1: ne vše bylo převzato.").arg(fileName(path));
    place_.window.tell(text, {{QStringLiteral("Podrobnosti"), [this, text, lines] {
                                   place_.desk.showMessage({qt::stored(text + QStringLiteral("\n\n") +
                                                                       lines.join(QLatin1Char('\n'))),
                                                            platform::MessageIcon::Information});
                               }}});
}

void ProjectFiles::save() {
    const QString path = qt::shown(work_->project().path);
    if (path.isEmpty()) {
        saveAs();
        return;
    }
    if (work_->changedOnDisk()) {
        const ChangedFile answer = askAboutChangedFile(&place_.window, path);
        if (answer == ChangedFile::SaveElsewhere) {
            saveAs();
        }
        if (answer != ChangedFile::Overwrite) {
            return;
        }
    }
    static_cast<void>(saveTo(path));
}

void ProjectFiles::saveAs() {
    QString suggested = suggestedPath();
    while (const auto path = askWhereToSaveProject(&place_.window, suggested)) {
        if (saveTo(*path)) {
            return;
        }
        suggested = *path;
    }
}

bool ProjectFiles::saveTo(const QString& path) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    bool saved = false;
    place_.kit.enter([this, &whole, &saved] {
        try {
            work_->save(qt::stored(whole));
            saved = true;
            keeper_.keep();
            remember(whole);
            place_.window.tell(QStringLiteral("Uloženo: %1").arg(whole), {});
        } catch (const ProjectError& error) {
            fail(error);
        }
    });
    changed();
    return saved;
}

void ProjectFiles::fail(const std::exception& error) {
    place_.desk.showMessage({error.what(), platform::MessageIcon::Critical});
}

QString ProjectFiles::folder() const {
    const QString own = qt::shown(work_->project().path);
    const QString last = own.isEmpty() ? qt::shown(readPreferences(places_.preferences_file).folder)
                                       : QFileInfo(own).absolutePath();
    return !last.isEmpty() && QFileInfo(last).isDir() ? last : documentsFolder();
}

QString ProjectFiles::suggestedPath() const {
    QString own = qt::shown(work_->project().path);
    if (!own.isEmpty()) {
        return own;
    }
    const QString name = qt::shown(place_.program.values().txtProjName).trimmed();
    return folder() + QLatin1Char('/') +
           withProjectSuffix(qt::savableName(name.isEmpty() ? QStringLiteral("projekt") : name));
}

std::vector<std::string> ProjectFiles::usedLast() const {
    return readPreferences(places_.preferences_file).files;
}

void ProjectFiles::remember(const QString& path) {
    // Read anew: another window may have written it meanwhile.
    Preferences preferences = readPreferences(places_.preferences_file);
    preferences.used(qt::stored(path));
    preferences.folder = qt::stored(QFileInfo(path).absolutePath());
    if (!place_.program.values().txtProjektant.empty()) {
        preferences.designer = place_.program.values().txtProjektant;
    }
    writePreferences(places_.preferences_file, preferences);
}

void ProjectFiles::offerLost() {
    keeper_.findLost();
    offerNext();
}

void ProjectFiles::offerNext() {
    qt::NoticeBar* bar = place_.window.lastingNotice();
    if (bar == nullptr || keeper_.lost().empty()) {
        if (bar != nullptr) {
            bar->hide();
        }
        return;
    }
    const LostCopy& first = keeper_.lost().front();
    const QString name =
        first.origin.empty() ? QStringLiteral("projekt bez názvu") : fileName(qt::shown(first.origin));
    QString text = QStringLiteral("Neuložená práce: %1, %2.").arg(name, moment(first.written));
    if (keeper_.lost().size() > 1) {
        text += QStringLiteral(" Další: %1.").arg(keeper_.lost().size() - 1);
    }
    bar->tell(text, {{QStringLiteral("Obnovit"), [this] { recover(); }},
                     {QStringLiteral("Zahodit"), [this] { discard(); }}});
}

void ProjectFiles::recover() {
    if (!place_.program.window().enabled()) {
        return;  // a dialog is open
    }
    place_.kit.enter([this] {
        keeper_.keepNow();
        const LostCopy copy = keeper_.take();
        try {
            show(qt::shown(copy.origin), work_->recover(copy.path, copy.origin));
        } catch (const ProjectError& error) {
            fail(error);
        }
        offerNext();
    });
    notice();
    changed();
}

void ProjectFiles::discard() {
    RecoveryCopies::remove(keeper_.take().path);
    offerNext();
}

}  // namespace mero::app
