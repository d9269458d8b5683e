// SPDX-License-Identifier: MIT
/// `mero-batch run`: runs a script on the forms without a window system.
#pragma once

#include <span>
#include <string_view>

namespace mero::app {

/// @param arguments what follows "run"
/// @return exit status: 0 the script ran to its end, 1 a run-time error ended it, 2 unusable script or
/// arguments
int runCommand(std::span<const std::string_view> arguments);

}  // namespace mero::app
