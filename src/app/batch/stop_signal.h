// SPDX-License-Identifier: MIT
/// Turns Ctrl-C into a flag that the sweep polls.
#pragma once

#include <atomic>

namespace mero::app {

/// Installs handlers for SIGINT and SIGTERM that set the flag instead of ending the program.
/// The flag is shared by the process, as its signal handlers are.
[[nodiscard]] const std::atomic<bool>& stopOnSignals();

}  // namespace mero::app
