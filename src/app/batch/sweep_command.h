// SPDX-License-Identifier: MIT
/// mero-batch sweep: all variants of a project as rows of a CSV file, and as a plot.
#pragma once

#include <span>
#include <string_view>

namespace mero::app {

/// @param arguments what follows "sweep"
/// @return the exit status
[[nodiscard]] int sweepCommand(std::span<const std::string_view> arguments);

}  // namespace mero::app
