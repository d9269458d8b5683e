// SPDX-License-Identifier: MIT
/// Finding the program's folder and the reader program.
/// Paths are bytes; nothing here depends on a locale.
#include "app/common/program_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "report/whole_file.h"

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

/// Copies what is missing; what the user replaced by his own stays. A file appears whole: what a full disk or
/// a program that starts at the same moment left half done would count as the user's own for ever.
void fillWithMissing(const fs::path& folder, const fs::path& installed) {
    std::error_code failure;
    fs::create_directories(folder, failure);
    for (fs::recursive_directory_iterator entry(installed, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        std::error_code ignored;
        const fs::path target = folder / entry->path().lexically_relative(installed);
        if (entry->is_directory(ignored)) {
            fs::create_directory(target, ignored);
        } else if (!fs::exists(target, ignored)) {
            static_cast<void>(report::replaceWhole(target.string(), [&](const std::string& fresh_path) {
                return fs::copy_file(entry->path(), fresh_path, fs::copy_options::overwrite_existing,
                                     ignored);
            }));
        }
    }
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

bool folderExists(const std::string& folder) {
    std::error_code failure;
    return fs::is_directory(folder, failure);
}

std::string folderMissing(const std::string& folder) {
    return "the program's folder " + folder + " cannot be made: there is no rain database and no report";
}

std::string rainReaderProgram() {
    const fs::path folder = executableFolder();
    const fs::path beside = folder / "mero-rain";
    std::error_code failure;
    return fs::exists(beside, failure) ? beside.string() : (folder / kInstalledReader).string();
}

}  // namespace mero::app
