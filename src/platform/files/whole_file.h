// SPDX-License-Identifier: MIT
/// Replaces a file by a complete new one, or not at all.
/// The new file is written beside the old one and replaces it only when it is complete.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mero::platform {

/// Whether the new file must be flushed to the disk before it replaces the old one, so that even a loss of
/// power leaves one of them complete; flushing can take long.
enum class OnDisk { Required, NotRequired };

/// Replaces a file or creates a new one.
///
/// If the path is a link, the file that it leads to is replaced. A folder, a device or a pipe is not
/// replaced.
/// @param write writes the content to the empty file at the given path; returns false on failure
/// @return false when the file could not be written or replaced; an old file is unchanged then and no
///         temporary file is left
[[nodiscard]] bool replaceWhole(const std::string& path,
                                const std::function<bool(const std::string& fresh_path)>& write,
                                OnDisk on_disk = OnDisk::Required);

/// The same for content in memory.
[[nodiscard]] bool replaceWhole(const std::string& path, std::string_view content,
                                OnDisk on_disk = OnDisk::Required);

}  // namespace mero::platform
