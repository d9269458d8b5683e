// SPDX-License-Identifier: MIT
/// Finds the program's folder.
/// Paths are treated as bytes, independent of the locale.
#include "app/common/program_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/files/whole_file.h"

namespace mero::app {
namespace {

namespace fs = std::filesystem;

/// Installed data relative to the executable's folder: PREFIX/bin and PREFIX/share/mero.
constexpr const char* kInstalledData = "../share/mero";

constexpr const char* kRainDatabase = "mero.mdb";
constexpr const char* kPages = "Webs";

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

/// Copies a missing file atomically: a partial copy, left by a full disk or by another program that starts at
/// the same moment, would be taken for the user's own file. The copy is writable even if the original is not.
void fillFile(const fs::path& file, const fs::path& original) {
    std::error_code failure;
    if (fs::exists(file, failure)) {
        return;
    }
    fs::create_directories(file.parent_path(), failure);
    const auto copy = [&original](const std::string& fresh) {
        std::error_code failed;
        return fs::copy_file(original, fresh, fs::copy_options::overwrite_existing, failed) &&
               (fs::permissions(fresh, fs::perms::owner_write, fs::perm_options::add, failed), !failed);
    };
    static_cast<void>(platform::replaceWhole(file.string(), copy));
}

/// Copies the missing files of the rain database and the pages; files that the user replaced stay.
void fillWithMissing(const fs::path& folder, const fs::path& installed) {
    std::error_code ended;
    fs::create_directories(folder, ended);
    if (fs::exists(installed / kRainDatabase, ended)) {
        fillFile(folder / kRainDatabase, installed / kRainDatabase);
    }
    fs::recursive_directory_iterator entry(installed / kPages, ended);
    for (; !ended && entry != fs::recursive_directory_iterator(); entry.increment(ended)) {
        std::error_code failure;
        if (entry->is_regular_file(failure)) {
            fillFile(folder / entry->path().lexically_relative(installed), entry->path());
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
    const bool own_folder = fs::is_directory(beside / kPages, failure);
    if (own_folder && canBeWritten(beside)) {
        return beside.string();
    }
    const fs::path folder = userDataFolder();
    // A read-only unpacked archive has its data beside the programs.
    fillWithMissing(folder, own_folder ? beside : beside / kInstalledData);
    return folder.string();
}

std::string folderOrDefault(const std::string& folder) {
    return folder.empty() ? defaultProgramFolder() : folder;
}

bool folderExists(const std::string& folder) {
    std::error_code failure;
    return fs::is_directory(folder, failure);
}

std::string folderMissing(const std::string& folder) {
    return "the program's folder " + folder + " cannot be made: there is no rain database and no report";
}

}  // namespace mero::app
