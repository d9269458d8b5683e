// SPDX-License-Identifier: MIT
/// `mero-batch sweep`: designs all variants of a project and writes a CSV file and a plot.
#pragma once

#include <span>
#include <string_view>

namespace mero::app {

/// @param arguments what follows "sweep"
/// @return the exit status
[[nodiscard]] int sweepCommand(std::span<const std::string_view> arguments);

}  // namespace mero::app
