// SPDX-License-Identifier: MIT
/// Finds the program's folder.
/// Paths are treated as bytes, independent of the locale.
#include "app/common/program_folder.h"

#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "platform/files/leftovers.h"
#include "platform/files/user_folders.h"
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

/// A run that was killed while it filled the folder leaves temporary files in it, also below.
void removeLeftoversOf(const fs::path& folder) {
    platform::removeLeftovers(folder.string());
    std::error_code ended;
    fs::recursive_directory_iterator entry(folder / kPages, ended);
    platform::removeLeftovers((folder / kPages).string());
    for (; !ended && entry != fs::recursive_directory_iterator(); entry.increment(ended)) {
        std::error_code failure;
        if (entry->is_directory(failure)) {
            platform::removeLeftovers(entry->path().string());
        }
    }
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

DefaultFolder findDefaultFolder() {
    const fs::path beside = executableFolder();
    std::error_code failure;
    const bool own_folder = fs::is_directory(beside / kPages, failure);
    if (own_folder && canBeWritten(beside)) {
        return {.path = beside.string(), .filled_from = {}};
    }
    // A read-only unpacked archive has its data beside the programs.
    return {.path = platform::userFolder(platform::UserFolder::Data).value_or(""),
            .filled_from = (own_folder ? beside : beside / kInstalledData).string()};
}

std::string defaultProgramFolder() {
    const DefaultFolder folder = findDefaultFolder();
    if (folder.path.empty()) {
        throw NoFolderError(
            "there is no folder for the rain database and the report: HOME is not set to a full path "
            "(give --folder DIR)");
    }
    removeLeftoversOf(folder.path);
    if (!folder.filled_from.empty()) {
        fillWithMissing(folder.path, folder.filled_from);
    }
    return folder.path;
}

std::string folderOrDefault(const std::string& folder) {
    if (folder.empty()) {
        return defaultProgramFolder();
    }
    removeLeftoversOf(folder);
    return folder;
}

bool folderExists(const std::string& folder) {
    std::error_code failure;
    return fs::is_directory(folder, failure);
}

std::string folderMissing(const std::string& folder) {
    return "the program's folder " + folder + " cannot be made: there is no rain database and no report";
}

}  // namespace mero::app
