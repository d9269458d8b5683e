// SPDX-License-Identifier: MIT
/// The dialogs that ask for a project's file, and the questions about it.
#pragma once

#include <QString>
#include <QWidget>
#include <optional>

namespace mero::app {

/// The path with the suffix of project files, unless it has ".json" already.
[[nodiscard]] QString withProjectSuffix(const QString& path);

/// Asks for a project to open. @param folder where the dialog begins @return empty when the user cancels
[[nodiscard]] std::optional<QString> askWhichProject(QWidget* parent, const QString& folder);

/// Asks where to save, and whether an existing file may be replaced.
/// @param suggested_path folder and name at the start
/// @return empty when the user cancels
[[nodiscard]] std::optional<QString> askWhereToSaveProject(QWidget* parent, const QString& suggested_path);

enum class ChangedFile { Overwrite, SaveElsewhere, Cancel };

/// Somebody else has changed the file since it was opened or saved: what now?
[[nodiscard]] ChangedFile askAboutChangedFile(QWidget* parent, const QString& path);

}  // namespace mero::app
