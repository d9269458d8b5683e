// SPDX-License-Identifier: MIT
/// Whether two paths mean one file.
#pragma once

#include <string>

namespace mero::platform {

/// True for two paths of one ordinary file, also through links and under different names, and for two paths
/// under which one file would be made. Devices, pipes and folders are never the same file.
[[nodiscard]] bool isSameFile(const std::string& one, const std::string& other);

}  // namespace mero::platform
