// SPDX-License-Identifier: MIT
/// `mero-batch rain`: the nine rows of the rain table from a file, from the total of a day, or from measured
/// rain.
#pragma once

#include <span>
#include <string_view>

namespace mero::app {

/// @return exit status
int rainCommand(std::span<const std::string_view> arguments);

}  // namespace mero::app
