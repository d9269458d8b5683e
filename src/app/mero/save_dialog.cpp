// SPDX-License-Identifier: MIT
/// The system's save dialog, and a separate question when the path with the added suffix is an existing file.
/// Only the report's suffixes count, so names with points ("hala 1.2") get one added.
#include "app/mero/save_dialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <algorithm>

namespace mero::app {

bool mayReplace(QWidget* parent, const QString& title, const QString& path) {
    QMessageBox box(QMessageBox::Question, title,
                    QStringLiteral("Soubor %1 už existuje. Nahradit jej?").arg(QFileInfo(path).fileName()),
                    QMessageBox::Yes | QMessageBox::No, parent);
    box.button(QMessageBox::Yes)->setText(QStringLiteral("&Ano"));
    box.button(QMessageBox::No)->setText(QStringLiteral("&Ne"));
    box.setObjectName(QStringLiteral("replace"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString withSuffix(const QString& path, const QString& filter) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("html") || suffix == QLatin1String("htm") || suffix == QLatin1String("pdf")) {
        return path;
    }
    return path + (filter == QString::fromUtf8(kPdfFilter) ? QLatin1String(".pdf") : QLatin1String(".html"));
}

bool isHidden(const QString& folder) {
    const QStringList parts = folder.split(QLatin1Char('/'));
    return std::any_of(parts.begin(), parts.end(),
                       [](const QString& part) { return part.startsWith(QLatin1Char('.')); });
}

QString documentsFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

std::optional<QString> askWhereToSave(QWidget* parent, const QString& suggested_path) {
    QFileDialog dialog(parent, QStringLiteral("Uložit výsledky"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // Without the columns of kinds and dates, which are in the language of the machine.
    dialog.setViewMode(QFileDialog::List);
    dialog.setNameFilters({QString::fromUtf8(kHtmlFilter), QString::fromUtf8(kPdfFilter)});
    // In Czech also where the window system's own translation is not installed; so is the question about an
    // existing file.
    dialog.setLabelText(QFileDialog::LookIn, QString::fromUtf8(kFolderLabel));
    dialog.setLabelText(QFileDialog::FileName, QString::fromUtf8(kNameLabel));
    dialog.setLabelText(QFileDialog::FileType, QString::fromUtf8(kTypeLabel));
    dialog.setLabelText(QFileDialog::Accept, QString::fromUtf8(kAcceptLabel));
    dialog.setLabelText(QFileDialog::Reject, QString::fromUtf8(kRejectLabel));
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDirectory(QFileInfo(suggested_path).absolutePath());
    dialog.selectFile(QFileInfo(suggested_path).fileName());
    const auto follow_filter = [&dialog](const QString& filter) {
        // The shown name follows the filter, so that the user sees the name of the saved file.
        const QStringList chosen = dialog.selectedFiles();
        if (const QFileInfo file(chosen.value(0)); !chosen.isEmpty() && !file.isDir()) {
            const bool known = withSuffix(file.fileName(), filter) == file.fileName();
            const QString bare = known ? file.fileName().chopped(file.suffix().size() + 1) : file.fileName();
            dialog.selectFile(withSuffix(bare, filter));
        }
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow_filter);
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString chosen = dialog.selectedFiles().constFirst();
        const QString path = withSuffix(chosen, dialog.selectedNameFilter());
        if (!QFileInfo::exists(path) || mayReplace(parent, dialog.windowTitle(), path)) {
            return path;
        }
    }
    return std::nullopt;
}

}  // namespace mero::app
