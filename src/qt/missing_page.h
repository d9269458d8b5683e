// SPDX-License-Identifier: MIT
/// What stands in place of a document that is missing, and the file names that a project's name can give.
#pragma once

#include <QString>

namespace mero::qt {

/// The page that says that the file cannot be shown. Where the project's name cannot be part of a file name
/// (a slash in it, too long), the page says that this is the cause.
[[nodiscard]] QString missingPage(const QString& path);

/// The file name of a path whose last part was made of a project's name as typed: characters that some file
/// system refuses, slashes among them, become hyphens, and a long name is cut.
/// @param path begins with a folder that exists
[[nodiscard]] QString savableName(const QString& path);

}  // namespace mero::qt
