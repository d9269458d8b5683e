// SPDX-License-Identifier: MIT
/// Reports the errors of a command: one line on standard error, and an exit status.
#pragma once

#include <functional>

namespace mero::app {

inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;         ///< a file cannot be written, the rain database cannot be read
inline constexpr int kUnusable = 2;       ///< arguments or project cannot be used; nothing was written
inline constexpr int kInterrupted = 130;  ///< ended by Ctrl-C; the rows so far are written

/// Runs a command; prints its exceptions and returns the exit status.
[[nodiscard]] int reportingFailures(const std::function<int()>& command);

}  // namespace mero::app
