// SPDX-License-Identifier: MIT
/// Reads a file whole, and recognises later whether somebody else has changed it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace mero::platform {

/// What a file was when it was read or written.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t modified_ns = 0;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t hash = 0;  ///< of its content
};

enum class ReadFailure : std::uint8_t {
    NotFound,
    NotPermitted,
    NotAFile,  ///< a folder, a device, a pipe
    TooLarge,
    Failed,
};

struct FileContent {
    std::string bytes;
    FileStamp stamp;
};

/// @param largest most bytes that are read
[[nodiscard]] std::variant<FileContent, ReadFailure> readWhole(const std::string& path, std::size_t largest);

/// The stamp of a file that was just written with that content.
[[nodiscard]] FileStamp stampOf(const std::string& path, std::string_view content);

/// Has the file another content than at the stamp? A file that is gone has none that could be lost: false.
[[nodiscard]] bool changedSince(const std::string& path, const FileStamp& stamp);

/// FNV-1a with 64 bits: the same on every machine; not against malice.
[[nodiscard]] std::uint64_t hashOf(std::string_view bytes);

}  // namespace mero::platform
