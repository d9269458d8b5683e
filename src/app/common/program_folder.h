// SPDX-License-Identifier: MIT
/// The program's folder: where the rain database, the description pages and the report file are.
/// A build tree or an unpacked archive is its own folder; an installed copy uses the user's data folder.
#pragma once

#include <optional>
#include <string>

namespace mero::app {

/// Full path of the running executable's folder, without a trailing separator.
[[nodiscard]] std::string executableFolder();

/// The program's folder by the rule: the executable's folder when it holds `Webs` and can be written, else
/// `$XDG_DATA_HOME/mero` (or `~/.local/share/mero`), made and filled with what is missing there of `mero.mdb`
/// and `Webs`: from the installed data, or from beside the executable where that folder cannot be written.
/// What cannot be made or copied is left out; the program then tells of the missing file.
[[nodiscard]] std::string defaultProgramFolder();

/// `folder`, or the default program folder when it is empty.
[[nodiscard]] std::string folderOrDefault(const std::string& folder);

/// Whether the folder is there. The user's own folder is not when it could not be made.
[[nodiscard]] bool folderExists(const std::string& folder);
/// What to say of a missing one on error output.
[[nodiscard]] std::string folderMissing(const std::string& folder);

/// Path of the rain reader: beside the executable, or in ../libexec/mero of an installed copy.
[[nodiscard]] std::string rainReaderProgram();

}  // namespace mero::app
