// SPDX-License-Identifier: MIT
/// Finding the program's folder and the reader program.
/// Paths are bytes; nothing here depends on a locale.
#include "app/common/program_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace mero::app {
namespace {

namespace fs = std::filesystem;

/// Installed data relative to the executable's folder: PREFIX/bin and PREFIX/share/mero.
constexpr const char* kInstalledData = "../share/mero";
constexpr const char* kInstalledReader = "../libexec/mero/mero-rain";

bool canBeWritten(const fs::path& folder) {
    return access(folder.c_str(), W_OK) == 0;
}

fs::path userDataFolder() {
    const char* data_home = std::getenv("XDG_DATA_HOME");
    if (data_home != nullptr && *data_home == '/') {
        return fs::path(data_home) / "mero";
    }
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr ? home : "/") / ".local/share/mero";
}

/// Copies what is missing; what the user replaced by his own stays.
void fillWithMissing(const fs::path& folder, const fs::path& installed) {
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    fs::copy(installed, folder, fs::copy_options::recursive | fs::copy_options::skip_existing, ignored);
}

}  // namespace

std::string executableFolder() {
    std::error_code failure;
    const fs::path executable = fs::read_symlink("/proc/self/exe", failure);
    return failure ? std::string(".") : executable.parent_path().string();
}

std::string defaultProgramFolder() {
    const fs::path beside = executableFolder();
    std::error_code failure;
    if (fs::is_directory(beside / "Webs", failure) && canBeWritten(beside)) {
        return beside.string();
    }
    const fs::path folder = userDataFolder();
    fillWithMissing(folder, beside / kInstalledData);
    return folder.string();
}

std::string rainReaderProgram() {
    const fs::path folder = executableFolder();
    const fs::path beside = folder / "mero-rain";
    std::error_code failure;
    return fs::exists(beside, failure) ? beside.string() : (folder / kInstalledReader).string();
}

}  // namespace mero::app
