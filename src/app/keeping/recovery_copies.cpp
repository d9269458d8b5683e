// SPDX-License-Identifier: MIT
/// `window-ab12cd.lock` is locked by its program; its copies are `window-ab12cd-1.json`, and the path of the
/// project's own file stands in `window-ab12cd-1.origin`.
#include "app/keeping/recovery_copies.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "platform/files/whole_file.h"
#include "platform/numbers/number_text.h"

namespace mero::app {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLockName = "/window-XXXXXX.lock";
constexpr std::string_view kLockSuffix = ".lock";
constexpr std::string_view kCopySuffix = ".json";
constexpr std::string_view kOriginSuffix = ".origin";
constexpr const char* kUnfinishedPrefix = ".mero-";
constexpr mode_t kOnlyForUser = 0600;
/// No write takes so long; an older unfinished file is left of a program that was ended.
constexpr auto kLongestWrite = std::chrono::minutes(1);

std::string withoutSuffix(const std::string& path) {
    return path.substr(0, path.rfind('.'));
}

std::string withSuffix(const std::string& path, std::string_view suffix) {
    return withoutSuffix(path) + std::string(suffix);
}

/// Is the lock ours, and is its file still there? One that has just lost its owner may have been removed.
bool lock(int descriptor) {
    struct stat status {};
    return flock(descriptor, LOCK_EX | LOCK_NB) == 0 && fstat(descriptor, &status) == 0 &&
           status.st_nlink > 0;
}

void removeFile(const std::string& path) {
    std::error_code failure;
    fs::remove(path, failure);
}

void removeUnfinished(const fs::directory_entry& entry) {
    std::error_code failure;
    const auto written = entry.last_write_time(failure);
    if (!failure && fs::file_time_type::clock::now() - written > kLongestWrite) {
        removeFile(entry.path().string());
    }
}

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

RecoveryCopies::~RecoveryCopies() {
    release(own_);
    for (Lock& lock : taken_) {
        release(lock);
    }
}

void RecoveryCopies::release(Lock& lock) const {
    if (lock.descriptor < 0) {
        return;
    }
    // While it is still locked, so that nobody else takes it.
    if (copiesOf(lock.path).empty()) {
        removeFile(lock.path);
    }
    close(lock.descriptor);
    lock.descriptor = -1;
}

bool RecoveryCopies::lockOwn() {
    if (folder_.empty()) {
        return false;
    }
    std::error_code failure;
    fs::create_directories(folder_, failure);
    // Another program may take the new file in the moment before it is locked.
    constexpr int kAttempts = 5;
    for (int attempt = 0; own_.descriptor < 0 && attempt < kAttempts; ++attempt) {
        std::string path = folder_ + kLockName;
        const int descriptor = mkostemps(path.data(), static_cast<int>(kLockSuffix.size()), O_CLOEXEC);
        if (descriptor < 0) {
            return false;
        }
        if (lock(descriptor)) {
            own_ = {std::move(path), descriptor};
        } else {
            close(descriptor);
        }
    }
    return own_.descriptor >= 0;
}

std::string RecoveryCopies::make(const std::string& origin) {
    if (!lockOwn()) {
        return {};
    }
    std::string path = withoutSuffix(own_.path) + "-" + numbers::general(++made_) + std::string(kCopySuffix);
    {
        std::ofstream file(withSuffix(path, kOriginSuffix), std::ios::binary);
        file << origin;
    }
    const int descriptor = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kOnlyForUser);
    if (descriptor < 0) {
        removeFile(withSuffix(path, kOriginSuffix));
        return {};
    }
    close(descriptor);
    return path;
}

void RecoveryCopies::write(const std::string& copy, std::string_view content) {
    if (!platform::replaceWhole(copy, content, platform::OnDisk::NotRequired)) {
        return;
    }
    const int descriptor = open(copy.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

void RecoveryCopies::remove(const std::string& copy) {
    removeFile(copy);
    removeFile(withSuffix(copy, kOriginSuffix));
}

std::vector<std::string> RecoveryCopies::copiesOf(const std::string& lock_path) const {
    const std::string beginning = fs::path(withoutSuffix(lock_path)).filename().string() + "-";
    std::vector<std::string> copies;
    std::error_code ended;
    for (fs::directory_iterator entry(folder_, ended); !ended && entry != fs::directory_iterator();
         entry.increment(ended)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(beginning) && name.ends_with(kCopySuffix)) {
            copies.push_back(entry->path().string());
        }
    }
    return copies;
}

void RecoveryCopies::takeFrom(const std::string& lock_path, std::vector<LostCopy>& lost) {
    Lock taken{lock_path, open(lock_path.c_str(), O_RDWR | O_CLOEXEC)};
    if (taken.descriptor < 0) {
        return;
    }
    if (!lock(taken.descriptor)) {  // its program runs
        close(taken.descriptor);
        return;
    }
    for (const std::string& copy : copiesOf(lock_path)) {
        struct stat status {};
        if (stat(copy.c_str(), &status) != 0 || status.st_size == 0) {
            remove(copy);
        } else {
            lost.push_back({copy, contentOf(withSuffix(copy, kOriginSuffix)), status.st_mtim.tv_sec});
        }
    }
    taken_.push_back(std::move(taken));
}

std::vector<LostCopy> RecoveryCopies::takeLost() {
    std::vector<std::string> locks;
    std::error_code ended;
    for (fs::directory_iterator entry(folder_, ended); !ended && entry != fs::directory_iterator();
         entry.increment(ended)) {
        const std::string name = entry->path().filename().string();
        if (name.ends_with(kLockSuffix) && entry->path().string() != own_.path) {
            locks.push_back(entry->path().string());
        } else if (name.starts_with(kUnfinishedPrefix)) {
            removeUnfinished(*entry);
        }
    }
    std::vector<LostCopy> lost;
    for (const std::string& path : locks) {
        takeFrom(path, lost);
    }
    std::ranges::sort(lost, [](const LostCopy& a, const LostCopy& b) {
        return std::pair(b.written, b.path) < std::pair(a.written, a.path);
    });
    return lost;
}

}  // namespace mero::app
