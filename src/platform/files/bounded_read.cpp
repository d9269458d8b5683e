// SPDX-License-Identifier: MIT
/// The size that the system tells is only a hint: files made by the system tell 0, and others grow.
#include "platform/files/bounded_read.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace mero::platform {
namespace {

ReadFailure failureOfOpening(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return ReadFailure::NotFound;
        case EACCES:
        case EPERM:
            return ReadFailure::NotPermitted;
        case ENXIO:  // a socket
        case ENODEV:
            return ReadFailure::NoFile;
        default:
            return ReadFailure::Failed;
    }
}

FileContent readAll(int descriptor, std::size_t most_bytes) {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) {
        return {.bytes = {}, .failure = ReadFailure::Failed};
    }
    if (!S_ISREG(status.st_mode)) {
        return {.bytes = {}, .failure = ReadFailure::NoFile};
    }
    const auto told = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
    if (told > most_bytes) {
        return {.bytes = {}, .failure = ReadFailure::TooLarge};
    }
    constexpr std::size_t kBlock = 65536;
    std::string bytes;
    bytes.reserve(told + kBlock);
    while (bytes.size() <= most_bytes) {
        const std::size_t before = bytes.size();
        bytes.resize(before + kBlock);
        const ssize_t count = ::read(descriptor, bytes.data() + before, kBlock);
        bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0) {
            return {.bytes = std::move(bytes)};
        }
        if (count < 0 && errno != EINTR) {
            return {.bytes = {}, .failure = ReadFailure::Failed};
        }
    }
    return {.bytes = {}, .failure = ReadFailure::TooLarge};
}

}  // namespace

FileContent readBounded(const std::string& path, std::size_t most_bytes) {
    if (path.find('\0') != std::string::npos) {
        return {.bytes = {}, .failure = ReadFailure::NotFound};
    }
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
        return {.bytes = {}, .failure = failureOfOpening(errno)};
    }
    FileContent content = readAll(descriptor, most_bytes);
    close(descriptor);
    return content;
}

FileContent readTextFile(const std::string& path) {
    return readBounded(path, kLongestTextFile);
}

const char* detailOf(ReadFailure failure) {
    switch (failure) {
        case ReadFailure::NoFile:
            return ": it is no ordinary file";
        case ReadFailure::TooLarge:
            return ": it is larger than 64 MB";
        case ReadFailure::None:
        case ReadFailure::NotFound:
        case ReadFailure::NotPermitted:
        case ReadFailure::Failed:
            break;
    }
    return "";
}

}  // namespace mero::platform
