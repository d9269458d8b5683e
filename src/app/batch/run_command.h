// SPDX-License-Identifier: MIT
/// `mero-batch run`: follows a script on the forms without any window system.
#pragma once

#include <span>
#include <string_view>

namespace mero::app {

/// @param arguments what follows "run"
/// @return exit status: 0 to the script's end, 1 ended by a run-time error, 2 unusable script or arguments
int runCommand(std::span<const std::string_view> arguments);

}  // namespace mero::app
