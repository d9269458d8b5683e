// SPDX-License-Identifier: MIT
/// Opens without waiting, so that a pipe does not hang the program.
#include "platform/files/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace mero::platform {
namespace {

class OpenFile {
  public:
    explicit OpenFile(const std::string& path)
        : descriptor_(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
    ~OpenFile() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    OpenFile(OpenFile&&) = delete;
    OpenFile& operator=(OpenFile&&) = delete;

    [[nodiscard]] int descriptor() const { return descriptor_; }

  private:
    int descriptor_;
};

FileStamp stampWithoutHash(const struct stat& status) {
    constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
    return {.size = static_cast<std::uint64_t>(status.st_size),
            .modified_ns = status.st_mtim.tv_sec * kNanosecondsPerSecond + status.st_mtim.tv_nsec,
            .device = status.st_dev,
            .inode = status.st_ino,
            .hash = 0};
}

ReadFailure failureOfOpening(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return ReadFailure::NotFound;
        case EACCES:
        case EPERM:
            return ReadFailure::NotPermitted;
        case ENXIO:
        case ENODEV:
            return ReadFailure::NotAFile;
        default:
            return ReadFailure::Failed;
    }
}

/// False when reading fails or there is more than `largest`.
bool readInto(std::string& bytes, int descriptor, std::size_t largest) {
    constexpr std::size_t kBlock = 65536;
    while (bytes.size() <= largest) {
        const std::size_t had = bytes.size();
        bytes.resize(had + kBlock);
        const ssize_t got = read(descriptor, bytes.data() + had, kBlock);
        bytes.resize(had + static_cast<std::size_t>(got > 0 ? got : 0));
        if (got == 0) {
            return true;
        }
        if (got < 0 && errno != EINTR) {
            return false;
        }
    }
    return false;
}

}  // namespace

std::uint64_t hashOf(std::string_view bytes) {
    constexpr std::uint64_t kBasis = 0xCBF29CE484222325ULL;
    constexpr std::uint64_t kPrime = 0x100000001B3ULL;
    std::uint64_t hash = kBasis;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    }
    return hash;
}

std::variant<FileContent, ReadFailure> readWhole(const std::string& path, std::size_t largest) {
    if (path.find('\0') != std::string::npos) {
        return ReadFailure::NotFound;
    }
    const OpenFile file(path);
    if (file.descriptor() < 0) {
        return failureOfOpening(errno);
    }
    struct stat status {};
    if (fstat(file.descriptor(), &status) != 0) {
        return ReadFailure::Failed;
    }
    if (!S_ISREG(status.st_mode)) {
        return ReadFailure::NotAFile;
    }
    if (static_cast<std::uint64_t>(status.st_size) > largest) {
        return ReadFailure::TooLarge;
    }
    FileContent content{.bytes = {}, .stamp = stampWithoutHash(status)};
    if (!readInto(content.bytes, file.descriptor(), largest)) {
        return ReadFailure::Failed;
    }
    content.stamp.hash = hashOf(content.bytes);
    return content;
}

FileStamp stampOf(const std::string& path, std::string_view content) {
    struct stat status {};
    FileStamp stamp;
    if (stat(path.c_str(), &status) == 0) {
        stamp = stampWithoutHash(status);
    }
    stamp.hash = hashOf(content);
    return stamp;
}

bool changedSince(const std::string& path, const FileStamp& stamp) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return false;
    }
    const FileStamp now = stampWithoutHash(status);
    if (now.size == stamp.size && now.modified_ns == stamp.modified_ns && now.device == stamp.device &&
        now.inode == stamp.inode) {
        return false;
    }
    if (now.size != stamp.size) {
        return true;
    }
    const auto read = readWhole(path, stamp.size);
    const auto* content = std::get_if<FileContent>(&read);
    return content == nullptr || content->stamp.hash != stamp.hash;
}

}  // namespace mero::platform
