// SPDX-License-Identifier: MIT
/// Shows the progress of a sweep on one line of the terminal: rows, share, rate, time left.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace mero::app {

/// The line without its control characters.
[[nodiscard]] std::string progressLine(std::uint64_t done, std::uint64_t all, double seconds);

/// Writes to standard error when that is a terminal, otherwise nothing.
class Progress {
  public:
    explicit Progress(std::uint64_t all);
    void tell(std::uint64_t done);
    /// Clears the line.
    void finish();

  private:
    using Clock = std::chrono::steady_clock;

    std::uint64_t all_;
    bool on_terminal_;
    Clock::time_point begin_;
    Clock::time_point last_;
};

}  // namespace mero::app
