// SPDX-License-Identifier: MIT
/// `mero-batch design`: designs one project file and prints its results and verdicts.
#pragma once

#include <span>
#include <string_view>

namespace mero::app {

/// @param arguments what follows "design"
/// @return the exit status
[[nodiscard]] int designCommand(std::span<const std::string_view> arguments);

}  // namespace mero::app
