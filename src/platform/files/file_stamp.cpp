// SPDX-License-Identifier: MIT
/// Compares what the system tells of a file first, and its content only in doubt.
#include "platform/files/file_stamp.h"

#include <sys/stat.h>

namespace mero::platform {
namespace {

FileStamp stampWithoutHash(const struct stat& status) {
    constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
    return {.size = static_cast<std::uint64_t>(status.st_size),
            .modified_ns = status.st_mtim.tv_sec * kNanosecondsPerSecond + status.st_mtim.tv_nsec,
            .device = status.st_dev,
            .inode = status.st_ino,
            .hash = 0};
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

StampedContent readStamped(const std::string& path, std::size_t most_bytes) {
    // Before it is read: what changes meanwhile is a change.
    struct stat status {};
    const bool known = path.find('\0') == std::string::npos && stat(path.c_str(), &status) == 0;
    StampedContent content{readBounded(path, most_bytes), {}};
    if (known) {
        content.stamp = stampWithoutHash(status);
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
    const FileContent content = readBounded(path, stamp.size);
    return content.failure != ReadFailure::None || hashOf(content.bytes) != stamp.hash;
}

}  // namespace mero::platform
