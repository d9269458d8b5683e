// SPDX-License-Identifier: MIT
/// Writes a temporary file in the target's folder, flushes it to the disk and renames it.
/// A rename within one folder is atomic.
#include "platform/files/fresh_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/files/leftovers.h"

namespace mero::platform {
namespace {

namespace fs = std::filesystem;

mode_t rightsOfNewFiles() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

std::string folderOf(const std::string& path) {
    const std::size_t name_at = path.rfind('/') + 1;
    return name_at == 0 ? "./" : path.substr(0, name_at);
}

}  // namespace

FreshFile::FreshFile(const std::string& target, Links links) {
    if (!findTarget(target, links)) {
        return;
    }
    const std::string folder = folderOf(target_);
    removeLeftovers(folder);
    // Another run that removes leftovers may take a file away before it is marked.
    constexpr int kAttempts = 100;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        path_ = folder + std::string(kTemporaryPrefix) + "XXXXXX";
        descriptor_ = mkostemp(path_.data(), O_CLOEXEC);
        if (descriptor_ < 0) {
            fail(errno);
            return;
        }
        if (markInUse(descriptor_)) {
            return;
        }
        close(descriptor_);
        descriptor_ = -1;
    }
    fail(EBUSY);
}

FreshFile::~FreshFile() {
    if (descriptor_ >= 0) {
        if (!in_place_) {
            unlink(path_.c_str());
        }
        close(descriptor_);
    }
}

bool FreshFile::fail(int error) {
    error_ = error;
    return false;
}

bool FreshFile::findTarget(const std::string& path, Links links) {
    if (path.empty() || path.find('\0') != std::string::npos) {
        return fail(ENOENT);
    }
    struct stat status {};
    if (links == Links::Refused && lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode)) {
        return fail(ELOOP);
    }
    if (stat(path.c_str(), &status) != 0) {
        // Also a dangling link: the link itself is replaced.
        target_ = path;
        mode_ = rightsOfNewFiles();
        return true;
    }
    std::error_code failure;
    const fs::path real = fs::canonical(path, failure);
    if (failure) {
        return fail(failure.value());
    }
    if (!S_ISREG(status.st_mode)) {
        return fail(S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    }
    if (access(path.c_str(), W_OK) != 0) {
        return fail(errno);
    }
    target_ = real.string();
    mode_ = status.st_mode & 07777U;
    return true;
}

bool FreshFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return fail(count < 0 ? errno : EIO);
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool FreshFile::rename(const std::string& name, OnDisk on_disk) {
    in_place_ = fchmod(descriptor_, mode_) == 0 &&
                (on_disk == OnDisk::NotRequired || fsync(descriptor_) == 0) &&
                ::rename(path_.c_str(), name.c_str()) == 0;
    return in_place_ || fail(errno);
}

bool FreshFile::putInPlace(OnDisk on_disk) {
    return rename(target_, on_disk);
}

bool FreshFile::keepBeside(std::string_view suffix) {
    target_ += suffix;
    struct stat status {};
    if (lstat(target_.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        return fail(EEXIST);
    }
    return rename(target_, OnDisk::Required);
}

std::string FreshFile::reason() const {
    return std::generic_category().message(error_);
}

}  // namespace mero::platform
