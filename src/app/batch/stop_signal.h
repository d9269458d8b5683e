// SPDX-License-Identifier: MIT
/// Ctrl-C as a wish that the program looks at when it suits it.
#pragma once

#include <atomic>

namespace mero::app {

/// From now on SIGINT and SIGTERM set the flag instead of ending the program.
/// The flag belongs to the process, because a signal does.
[[nodiscard]] const std::atomic<bool>& stopOnSignals();

}  // namespace mero::app
