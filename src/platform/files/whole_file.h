// SPDX-License-Identifier: MIT
/// Replaces a file by a complete new one, or not at all.
/// The new file is written beside the old one and replaces it only when it is complete.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/files/fresh_file.h"

namespace mero::platform {

/// Replaces a file or creates a new one. A folder, a device or a pipe is not replaced.
///
/// @param write writes the content to the empty file at the given path; returns false on failure
/// @return false when the file could not be written or replaced; an old file is unchanged then and no
///         temporary file is left
[[nodiscard]] bool replaceWhole(const std::string& path,
                                const std::function<bool(const std::string& fresh_path)>& write,
                                OnDisk on_disk = OnDisk::Required, Links links = Links::Followed);

/// The same for content in memory.
[[nodiscard]] bool replaceWhole(const std::string& path, std::string_view content,
                                OnDisk on_disk = OnDisk::Required, Links links = Links::Followed);

}  // namespace mero::platform
