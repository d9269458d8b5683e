/// The search for the program's folder.
/// Files that the user has put into the data folder are kept; only what is missing is copied.
#include "app/common/program_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace mero::app {
namespace {

namespace fs = std::filesystem;

constexpr const char* kWebs = "Webs";
constexpr const char* kReader = "mero-rain";

std::string environmentValue(const char* name) {
    // Read once, at the start, before there is a second thread.
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return value == nullptr ? std::string() : value;
}

bool holdsWebs(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_directory(folder / kWebs, ignored);
}

bool canBeWritten(const fs::path& folder) {
    return access(folder.c_str(), W_OK) == 0;
}

fs::path userFolder(const FolderEnvironment& environment) {
    const fs::path data_home(environment.data_home);
    if (data_home.is_absolute()) {
        return data_home / "mero";
    }
    return fs::path(environment.home) / ".local" / "share" / "mero";
}

void fillFrom(const fs::path& installed, const fs::path& folder) {
    std::error_code missing;
    if (!fs::is_directory(installed, missing)) {
        return;
    }
    for (const auto& entry : fs::recursive_directory_iterator(installed)) {
        const fs::path target = folder / entry.path().lexically_relative(installed);
        if (entry.is_directory()) {
            fs::create_directories(target);
        } else if (!fs::exists(target)) {
            fs::copy_file(entry.path(), target);
            // An installed file is often read-only; the user's own copy is the user's to replace.
            fs::permissions(target, fs::perms::owner_write, fs::perm_options::add);
        }
    }
}

}  // namespace

FolderEnvironment folderEnvironment() {
    std::error_code failure;
    return {fs::read_symlink("/proc/self/exe", failure), environmentValue("XDG_DATA_HOME"),
            environmentValue("HOME")};
}

fs::path programFolder(const FolderEnvironment& environment) {
    const fs::path beside = environment.executable.parent_path();
    if (holdsWebs(beside) && canBeWritten(beside)) {
        return beside;
    }
    const fs::path folder = userFolder(environment);
    fs::create_directories(folder);
    fillFrom(beside.parent_path() / "share" / "mero", folder);
    return folder;
}

fs::path rainReader(const FolderEnvironment& environment) {
    const fs::path beside = environment.executable.parent_path();
    const fs::path installed = beside.parent_path() / "libexec" / "mero" / kReader;
    std::error_code ignored;
    if (!fs::exists(beside / kReader, ignored) && fs::exists(installed, ignored)) {
        return installed;
    }
    return beside / kReader;
}

}  // namespace mero::app
