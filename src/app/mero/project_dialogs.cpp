// SPDX-License-Identifier: MIT
/// The system's file dialogs in Czech, also where the window system's own translation is not installed.
#include "app/mero/project_dialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include "app/mero/save_dialog.h"

namespace mero::app {
namespace {

constexpr const char* kSuffix = ".mero.json";
constexpr const char* kFilter = "Projekt MERO (*.mero.json *.json)";

void arrange(QFileDialog& dialog, const char* accept) {
    // Without the columns of kinds and dates, which are in the language of the machine.
    dialog.setViewMode(QFileDialog::List);
    dialog.setLabelText(QFileDialog::LookIn, QString::fromUtf8(kFolderLabel));
    dialog.setLabelText(QFileDialog::FileName, QString::fromUtf8(kNameLabel));
    dialog.setLabelText(QFileDialog::FileType, QString::fromUtf8(kTypeLabel));
    dialog.setLabelText(QFileDialog::Accept, QString::fromUtf8(accept));
    dialog.setLabelText(QFileDialog::Reject, QString::fromUtf8(kRejectLabel));
}

}  // namespace

QString withProjectSuffix(const QString& path) {
    return path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive) ? path : path + QLatin1String(kSuffix);
}

std::optional<QString> askWhichProject(QWidget* parent, const QString& folder) {
    QFileDialog dialog(parent, QStringLiteral("Otevřít projekt"), folder);
    dialog.setObjectName(QStringLiteral("openProject"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({QString::fromUtf8(kFilter), QStringLiteral("Všechny soubory (*)")});
    arrange(dialog, "&Otevřít");
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> askWhereToSaveProject(QWidget* parent, const QString& suggested_path) {
    const QString title = QStringLiteral("Uložit projekt");
    QFileDialog dialog(parent, title, QFileInfo(suggested_path).absolutePath());
    dialog.setObjectName(QStringLiteral("saveProject"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters({QString::fromUtf8(kFilter)});
    arrange(dialog, kAcceptLabel);
    // Asked below, about the name with its suffix.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(QFileInfo(suggested_path).fileName());
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString path = withProjectSuffix(dialog.selectedFiles().constFirst());
        if (!QFileInfo::exists(path) || mayReplace(parent, title, path)) {
            return path;
        }
    }
    return std::nullopt;
}

ChangedFile askAboutChangedFile(QWidget* parent, const QString& path) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Uložit projekt"),
                    QStringLiteral("Soubor %1 mezitím změnil někdo jiný. Uložením by se jeho změny ztratily.")
                        .arg(QFileInfo(path).fileName()),
                    QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("changedFile"));
    box.setTextFormat(Qt::PlainText);
    const QPushButton* elsewhere = box.addButton(QStringLiteral("&Uložit jako…"), QMessageBox::AcceptRole);
    const QPushButton* overwrite = box.addButton(QStringLiteral("&Přepsat"), QMessageBox::DestructiveRole);
    QPushButton* cancel = box.addButton(QStringLiteral("Zrušit"), QMessageBox::RejectRole);
    box.setDefaultButton(cancel);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == overwrite) {
        return ChangedFile::Overwrite;
    }
    return box.clickedButton() == elsewhere ? ChangedFile::SaveElsewhere : ChangedFile::Cancel;
}

}  // namespace mero::app
