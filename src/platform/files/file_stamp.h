// SPDX-License-Identifier: MIT
/// Recognises whether somebody else has changed a file since it was read or written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files/bounded_read.h"

namespace mero::platform {

/// What a file was when it was read or written.
struct FileStamp {
    std::uint64_t size = 0;
    std::int64_t modified_ns = 0;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t hash = 0;  ///< of its content
};

struct StampedContent : FileContent {
    FileStamp stamp;
};

/// Reads an ordinary file of at most `most_bytes`.
[[nodiscard]] StampedContent readStamped(const std::string& path, std::size_t most_bytes);

/// The stamp of a file that was just written with that content.
[[nodiscard]] FileStamp stampOf(const std::string& path, std::string_view content);

/// Has the file another content than at the stamp? A file that is gone has none that could be lost: false.
[[nodiscard]] bool changedSince(const std::string& path, const FileStamp& stamp);

/// FNV-1a with 64 bits: the same on every machine; not against malice.
[[nodiscard]] std::uint64_t hashOf(std::string_view bytes);

}  // namespace mero::platform
