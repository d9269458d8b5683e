// SPDX-License-Identifier: MIT
/// Locks with flock, which belongs to the open file: a process id in the name could be in use again.
/// Where a file system knows no locks, no file can be locked, and so none is removed.
#include "platform/files/leftovers.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace mero::platform {
namespace {

namespace fs = std::filesystem;

/// Whether the name still leads to the open file, which is an ordinary one of ours.
bool isOwnFile(int descriptor, const char* path) {
    struct stat opened {};
    struct stat named {};
    return fstat(descriptor, &opened) == 0 && lstat(path, &named) == 0 && S_ISREG(opened.st_mode) &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino && opened.st_uid == geteuid();
}

void removeIfUnused(const std::string& path) {
    const int descriptor = open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
        return;
    }
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0 && isOwnFile(descriptor, path.c_str())) {
        unlink(path.c_str());
    }
    close(descriptor);
}

}  // namespace

bool isTemporaryName(std::string_view name) {
    constexpr std::size_t kRandomCharacters = 6;
    if (!name.starts_with(kTemporaryPrefix) || name.size() != kTemporaryPrefix.size() + kRandomCharacters) {
        return false;
    }
    name.remove_prefix(kTemporaryPrefix.size());
    return std::all_of(name.begin(), name.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    });
}

void removeLeftovers(const std::string& folder) {
    std::error_code failure;
    fs::directory_iterator entry(folder, failure);
    for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
        if (isTemporaryName(entry->path().filename().native())) {
            removeIfUnused(entry->path().native());
        }
    }
}

bool markInUse(int descriptor) {
    // Waits for a run that is just removing the file, which was unlocked for a moment.
    int locked = -1;
    do {
        locked = flock(descriptor, LOCK_EX);
    } while (locked != 0 && errno == EINTR);
    struct stat status {};
    return fstat(descriptor, &status) == 0 && status.st_nlink > 0;
}

}  // namespace mero::platform
