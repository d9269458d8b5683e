/// Where the program's own files are: its folder, and the reader of the rain database.
/// It never guesses from the current folder; everything follows from the executable and the environment.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace mero::app {

/// The environment's part in the search, given and not read, so that a test can give another.
struct FolderEnvironment {
    std::filesystem::path executable;  ///< full path of the running program
    std::string data_home;             ///< XDG_DATA_HOME, may be empty
    std::string home;                  ///< HOME, may be empty
};

/// The environment of this process.
[[nodiscard]] FolderEnvironment folderEnvironment();

/// The program's folder: that of the executable when it holds `Webs` and can be written (a build tree, an
/// unpacked archive); otherwise the user's data folder `mero`, filled with what it lacks of the installed
/// data (`../share/mero` beside the executable's folder).
/// @throws std::filesystem::filesystem_error when the user's data folder cannot be made or filled
[[nodiscard]] std::filesystem::path programFolder(const FolderEnvironment& environment);

/// Path of `mero-rain`: beside the executable, or in `../libexec/mero`. Beside it when it is in neither.
[[nodiscard]] std::filesystem::path rainReader(const FolderEnvironment& environment);

}  // namespace mero::app
