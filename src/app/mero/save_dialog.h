// SPDX-License-Identifier: MIT
/// The save dialog of the report: HTML or PDF, the suffix added where it is missing.
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <optional>

namespace mero::app {

inline constexpr const char* kHtmlFilter = "Stránka HTML (*.html *.htm)";
inline constexpr const char* kPdfFilter = "Dokument PDF (*.pdf)";

/// The path with the suffix of the chosen filter, unless it has one of a report already.
[[nodiscard]] QString withSuffix(const QString& path, const QString& filter);

/// Asks where to save. A file that is there already is asked about.
/// @param suggested_path folder and name that the dialog begins with
/// @return nothing when the user cancels
[[nodiscard]] std::optional<QString> askWhereToSave(QWidget* parent, const QString& suggested_path);

}  // namespace mero::app
