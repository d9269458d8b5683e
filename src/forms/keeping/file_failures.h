// SPDX-License-Identifier: MIT
/// Why a project file could not be read or written, in Czech, for the user.
#pragma once

#include <cstddef>
#include <string>

#include "platform/files/read_file.h"

namespace mero::forms {

[[nodiscard]] std::string readFailureText(const std::string& path, platform::ReadFailure failure);

/// To be asked right after writing failed. @param size of the file in bytes
[[nodiscard]] std::string writeFailureText(const std::string& path, std::size_t size);

}  // namespace mero::forms
