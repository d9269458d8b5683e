// SPDX-License-Identifier: MIT
/// Writes the new file, flushes it to the disk and renames it.
/// A rename within one folder is atomic.
#include "platform/files/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

namespace mero::platform {
namespace {

namespace fs = std::filesystem;

/// The file that the path leads to, and the mode of the new file.
struct Target {
    std::string path;
    mode_t mode = 0;
};

mode_t rightsOfNewFiles() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

std::optional<Target> findTarget(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) {
        return std::nullopt;
    }
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        // Also a dangling link: the link itself is replaced.
        return Target{path, rightsOfNewFiles()};
    }
    std::error_code failure;
    const fs::path real = fs::canonical(path, failure);
    if (failure || !S_ISREG(status.st_mode) || access(path.c_str(), W_OK) != 0) {
        return std::nullopt;
    }
    return Target{real.string(), status.st_mode & 07777U};
}

/// An empty file beside the target; removed unless it became the target.
class FreshFile {
  public:
    explicit FreshFile(const Target& target) : target_(&target), path_(target.path) {
        const std::size_t name_at = path_.rfind('/') + 1;
        path_.replace(name_at, std::string::npos, ".mero-XXXXXX");
        descriptor_ = mkostemp(path_.data(), O_CLOEXEC);
    }
    ~FreshFile() {
        if (descriptor_ >= 0) {
            close(descriptor_);
            if (!in_place_) {
                unlink(path_.c_str());
            }
        }
    }
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;
    FreshFile(FreshFile&&) = delete;
    FreshFile& operator=(FreshFile&&) = delete;

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] const std::string& path() const { return path_; }

    [[nodiscard]] bool putInPlace(OnDisk on_disk) {
        in_place_ = fchmod(descriptor_, target_->mode) == 0 &&
                    (on_disk == OnDisk::NotRequired || fsync(descriptor_) == 0) &&
                    rename(path_.c_str(), target_->path.c_str()) == 0;
        return in_place_;
    }

  private:
    const Target* target_;
    std::string path_;
    int descriptor_ = -1;
    bool in_place_ = false;
};

}  // namespace

bool replaceWhole(const std::string& path, const std::function<bool(const std::string& fresh_path)>& write,
                  OnDisk on_disk) {
    const auto target = findTarget(path);
    if (!target) {
        return false;
    }
    FreshFile fresh(*target);
    return fresh.isOpen() && write(fresh.path()) && fresh.putInPlace(on_disk);
}

bool replaceWhole(const std::string& path, std::string_view content, OnDisk on_disk) {
    const auto write = [content](const std::string& fresh_path) {
        std::ofstream file(fresh_path, std::ios::binary | std::ios::trunc);
        file << content;
        file.close();
        return !file.fail();
    };
    return replaceWhole(path, write, on_disk);
}

}  // namespace mero::platform
