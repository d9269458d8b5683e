// SPDX-License-Identifier: MIT
/// Files that exist are compared by device and number, others by the real folder and the name.
#include "platform/files/same_file.h"

#include <sys/stat.h>

#include <filesystem>
#include <system_error>

namespace mero::platform {
namespace {

namespace fs = std::filesystem;

/// Where a file of this name would be made; empty when its folder does not exist.
fs::path placeOf(const std::string& path) {
    const fs::path name = fs::path(path).filename();
    const fs::path folder = fs::path(path).parent_path();
    std::error_code failure;
    const fs::path real = fs::canonical(folder.empty() ? fs::path(".") : folder, failure);
    return failure || name.empty() ? fs::path() : real / name;
}

}  // namespace

bool isSameFile(const std::string& one, const std::string& other) {
    struct stat first {};
    struct stat second {};
    const bool first_exists = stat(one.c_str(), &first) == 0;
    const bool second_exists = stat(other.c_str(), &second) == 0;
    if (first_exists && second_exists) {
        return S_ISREG(first.st_mode) && first.st_dev == second.st_dev && first.st_ino == second.st_ino;
    }
    if (first_exists || second_exists) {
        return false;
    }
    const fs::path place = placeOf(one);
    return !place.empty() && place == placeOf(other);
}

}  // namespace mero::platform
