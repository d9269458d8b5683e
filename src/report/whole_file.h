// SPDX-License-Identifier: MIT
/// Replacing a file by a whole new one, or not at all.
/// The new file is made beside the old one and takes its place only when it is complete on the disk.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace mero::report {

/// Whether the file must be on the disk before it takes its place, so that even a loss of power leaves the
/// old one or the new one; that can take long.
enum class OnDisk { Required, NotRequired };

/// Replaces a file or makes a new one.
///
/// A link keeps leading where it led, and the file it leads to is replaced. What is no file of a file system
/// (a folder, a device, a pipe) is left alone.
/// @param write makes the content in the empty file whose path it is given; false when it could not
/// @return false when the file could not be made or replaced; an old file is whole then and nothing is left
///         beside it
[[nodiscard]] bool replaceWhole(const std::string& path,
                                const std::function<bool(const std::string& fresh_path)>& write,
                                OnDisk on_disk = OnDisk::Required);

/// The same with the content at hand.
[[nodiscard]] bool replaceWhole(const std::string& path, std::string_view content,
                                OnDisk on_disk = OnDisk::Required);

}  // namespace mero::report
