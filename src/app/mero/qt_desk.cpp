// SPDX-License-Identifier: MIT
/// Message boxes and dialogs of the window system.
/// A printer is looked for only when the preview opens, because finding the default printer can take long.
#include "app/mero/qt_desk.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <utility>

#include "app/mero/pdf_file.h"
#include "app/mero/save_dialog.h"
#include "qt/document_pages.h"
#include "qt/missing_page.h"
#include "qt/texts.h"

namespace mero::app {
namespace {

using qt::shown;

QMessageBox::Icon boxIcon(platform::MessageIcon icon) {
    switch (icon) {
        case platform::MessageIcon::Critical:
            return QMessageBox::Critical;
        case platform::MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case platform::MessageIcon::Information:
            return QMessageBox::Information;
        case platform::MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

QtDesk::QtDesk(Sitter sitter, qt::Decoder decode) : sitter_(sitter), decode_(std::move(decode)) {}

QWidget* QtDesk::window() const {
    QWidget* active = QApplication::activeWindow();
    return active != nullptr ? active : main_window_.data();
}

void QtDesk::showMessage(const platform::Message& message) {
    if (!told_beside_field || !told_beside_field(message)) {
        showBox(message);
    }
}

void QtDesk::showBox(const platform::Message& message) {
    QMessageBox box(boxIcon(message.icon), shown(message.title.value_or(platform::kApplicationTitle)),
                    shown(message.text).replace(QLatin1String("\r\n"), QLatin1String("\n")).trimmed(),
                    QMessageBox::Ok, window());
    box.setObjectName(QStringLiteral("message"));
    box.setTextFormat(Qt::PlainText);
    if (sitter_ == Sitter::Person) {
        const QPointer<QWidget> below = window();
        box.exec();
        // Without a window manager no window gets the focus by itself.
        if (!below.isNull()) {
            below->activateWindow();
        }
        if (message_closed) {
            message_closed(message);
        }
        return;
    }
    box.setWindowModality(Qt::ApplicationModal);
    box.show();
    QApplication::processEvents();
    box.done(QMessageBox::Ok);
}

void QtDesk::reportError(const RuntimeError& error) {
    QString text = QStringLiteral("Chyba za běhu programu č. %1: %2.")
                       .arg(QString::number(error.number()), shown(error.description()));
    if (error.endsProgram()) {
        text += QStringLiteral("\n\nProgram bude ukončen.");
        showBox({qt::stored(text), platform::MessageIcon::Critical});
        return;
    }
    showMessage({qt::stored(text), platform::MessageIcon::Critical});
}

void QtDesk::tellOfNoBrowser(const std::string& address) {
    showMessage({"Adresu " + address + " se nepodařilo otevřít.", platform::MessageIcon::Exclamation});
}

// QDesktopServices only reports whether the opener was started, not whether it found a browser.
void QtDesk::openAddress(const std::string& address) {
    if (sitter_ != Sitter::Person) {
        return;
    }
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty()) {
        if (!QDesktopServices::openUrl(QUrl(shown(address)))) {
            tellOfNoBrowser(address);
        }
        return;
    }
    // The process may be the browser itself, running until it is closed: it outlives the program.
    auto* process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QObject::connect(process, &QProcess::finished, &while_there_,
                     [this, address](int exit_code, QProcess::ExitStatus status) {
                         if (exit_code != 0 || status != QProcess::NormalExit) {
                             tellOfNoBrowser(address);
                         }
                     });
    QObject::connect(process, &QProcess::errorOccurred, &while_there_,
                     [this, process, address](QProcess::ProcessError error) {
                         if (error == QProcess::FailedToStart) {
                             process->deleteLater();
                             tellOfNoBrowser(address);
                         }
                     });
    process->start(opener, {shown(address)});
}

// Changes of forms and views are visible on the screen.
void QtDesk::formOpened(const std::string& /*form*/) {}
void QtDesk::formClosed(const std::string& /*form*/) {}
void QtDesk::navigated(const std::string& /*view*/, const std::string& /*path*/) {}
void QtDesk::ended() {}

void QtDesk::openPrintPreview(const std::string& path) {
    if (sitter_ == Sitter::Script) {
        return;
    }
    qt::LocalDocument document(decode_);
    document.load(shown(path));
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(qt::paperLayout());
    printer.setDocName(QFileInfo(shown(path)).fileName());
    QPrintPreviewDialog preview(&printer, window());
    preview.setWindowTitle(QStringLiteral("Náhled před tiskem"));
    QObject::connect(
        &preview, &QPrintPreviewDialog::paintRequested, &document,
        [&document, note = shown(page_note_)](QPrinter* target) { qt::paintPages(document, *target, note); });
    preview.exec();
}

std::optional<std::string> QtDesk::askSavePath(const std::string& suggested_path) {
    if (sitter_ == Sitter::Script) {
        return std::nullopt;
    }
    const bool known = !last_folder_.isEmpty() && QFileInfo(last_folder_).isDir() && !isHidden(last_folder_);
    const QString folder = known ? last_folder_ : documentsFolder();
    const auto path =
        askWhereToSave(window(), folder + QLatin1Char('/') + qt::savableName(shown(suggested_path)));
    if (!path) {
        return std::nullopt;
    }
    last_folder_ = QFileInfo(*path).absolutePath();
    return qt::stored(*path);
}

void QtDesk::saved(const std::string& path) {
    if (sitter_ == Sitter::Person && file_saved) {
        file_saved(path);
    }
}

void tellBesideFields(QtDesk& desk, qt::Typing& typing) {
    desk.told_beside_field = [&typing](const platform::Message& message) { return typing.tell(message); };
    typing.show_box = [&desk](const platform::Message& message) { desk.showMessage(message); };
}

platform::PdfResult QtDesk::makePdf(const std::string& document_path, const std::string& target_path) {
    return makePdfFile(document_path, target_path, decode_, page_note_);
}

}  // namespace mero::app
