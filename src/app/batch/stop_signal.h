// SPDX-License-Identifier: MIT
/// Turns Ctrl-C into a flag that the sweep polls.
#pragma once

#include <atomic>

namespace mero::app {

/// Installs handlers for SIGINT, SIGTERM and SIGHUP that set the flag instead of ending the program. A signal
/// that is ignored stays ignored.
/// The flag is shared by the process, as its signal handlers are.
[[nodiscard]] const std::atomic<bool>& stopOnSignals();

}  // namespace mero::app
