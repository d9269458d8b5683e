// SPDX-License-Identifier: MIT
/// Reads a file into memory without waiting and within a limit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace mero::platform {

/// Most bytes of a text file that a user names: a project, a script.
inline constexpr std::size_t kLongestTextFile = std::size_t{64} * 1024 * 1024;

enum class ReadFailure : std::uint8_t {
    None,
    NotFound,
    NotPermitted,
    Failed,    ///< an error while reading
    NoFile,    ///< a folder, a device, a pipe or a socket, of which nothing was read
    TooLarge,  ///< more bytes than the limit
};

struct FileContent {
    std::string bytes;  ///< empty after a failure
    ReadFailure failure = ReadFailure::None;
};

/// Reads an ordinary file. Opening a pipe without a writer does not block.
[[nodiscard]] FileContent readBounded(const std::string& path, std::size_t most_bytes);

/// Reads a text file of at most kLongestTextFile bytes.
[[nodiscard]] FileContent readTextFile(const std::string& path);

/// More about a failure of readTextFile(), to follow "cannot be read": ": it is no ordinary file", or
/// nothing.
[[nodiscard]] const char* detailOf(ReadFailure failure);

}  // namespace mero::platform
