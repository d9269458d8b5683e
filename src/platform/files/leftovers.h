// SPDX-License-Identifier: MIT
/// Temporary files of runs that were killed before they could remove them.
/// A run locks its temporary file while it writes. The system releases the lock when the process ends,
/// however it ends, so a file without a lock has no owner any more.
#pragma once

#include <string>
#include <string_view>

namespace mero::platform {

/// Begins the name of every temporary file; six random letters and digits follow.
inline constexpr std::string_view kTemporaryPrefix = ".mero-";

/// Whether a file of this name, without its folder, is a temporary one.
[[nodiscard]] bool isTemporaryName(std::string_view name);

/// Removes the temporary files of ended runs from a folder, not from its subfolders; errors are ignored.
/// Files that a running program writes, files of other users and all other names stay.
void removeLeftovers(const std::string& folder);

/// Marks an open temporary file as in use for as long as its descriptor is open.
/// @return false when another run has removed the file since it was made
[[nodiscard]] bool markInUse(int descriptor);

}  // namespace mero::platform
