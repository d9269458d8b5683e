// SPDX-License-Identifier: MIT
/// The save dialog of the report: HTML or PDF; a missing suffix is added.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <optional>

namespace mero::app {

inline constexpr const char* kHtmlFilter = "Stránka HTML (*.html *.htm)";
inline constexpr const char* kPdfFilter = "Dokument PDF (*.pdf)";
inline constexpr const char* kFolderLabel = "Složka:";
inline constexpr const char* kNameLabel = "&Název souboru:";
inline constexpr const char* kTypeLabel = "Druh souboru:";
inline constexpr const char* kAcceptLabel = "&Uložit";
inline constexpr const char* kRejectLabel = "Zrušit";

/// The path with the suffix of the chosen filter, unless it already has a suffix of a report.
[[nodiscard]] QString withSuffix(const QString& path, const QString& filter);

/// The user's folder of documents, or the home folder where there is none.
[[nodiscard]] QString documentsFolder();
/// True when the folder, or one that it lies in, is hidden: nobody finds again what is saved there.
[[nodiscard]] bool isHidden(const QString& folder);

/// Asks whether an existing file may be replaced. @param title of the dialog that the question belongs to
[[nodiscard]] bool mayReplace(QWidget* parent, const QString& title, const QString& path);

/// Asks where to save, and whether an existing file may be replaced.
/// @param suggested_path folder and name at the start
/// @return empty when the user cancels
[[nodiscard]] std::optional<QString> askWhereToSave(QWidget* parent, const QString& suggested_path);

}  // namespace mero::app
