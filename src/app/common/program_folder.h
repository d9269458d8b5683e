// SPDX-License-Identifier: MIT
/// Finds the program's folder, which holds the rain database, the description pages and the report file.
/// A build tree or an unpacked archive uses its own folder, an installed copy the user's data folder.
#pragma once

#include <string>

#include "app/common/command_line.h"

namespace mero::app {

/// Thrown when the environment does not say where the user's data belong.
class NoFolderError : public UsageError {
  public:
    using UsageError::UsageError;
};

struct DefaultFolder {
    std::string path;         ///< "" when the environment does not say where the user's data belong
    std::string filled_from;  ///< the folder of the data that are copied into it, "" for none
};

/// Full path of the running executable's folder, without a trailing separator.
[[nodiscard]] std::string executableFolder();

/// Finds the default program folder without making or filling it.
[[nodiscard]] DefaultFolder findDefaultFolder();

/// The executable's folder when it holds `Webs` and is writable, else `$XDG_DATA_HOME/mero` (or
/// `~/.local/share/mero`). The latter is created, and missing parts of `mero.mdb` and `Webs` are copied into
/// it: from the installed data, or from the executable's folder when that has them but is not writable.
/// Temporary files of killed runs are removed.
/// Errors are ignored here; the program later reports the missing file.
/// @throws NoFolderError when there is no user's data folder
[[nodiscard]] std::string defaultProgramFolder();

/// `folder`, or the default program folder when it is empty. Temporary files of killed runs are removed.
/// @throws NoFolderError
[[nodiscard]] std::string folderOrDefault(const std::string& folder);

/// Whether the folder exists. The user's data folder may be missing because it could not be created.
[[nodiscard]] bool folderExists(const std::string& folder);
/// The error message for a missing folder.
[[nodiscard]] std::string folderMissing(const std::string& folder);

}  // namespace mero::app
