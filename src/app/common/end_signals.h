// SPDX-License-Identifier: MIT
/// Requests to end from outside: SIGTERM (shutdown, kill), SIGHUP (closed terminal), SIGINT (Ctrl-C).
/// The program first cleans up as after closing its window, then ends by the same signal.
#pragma once

namespace mero::app {

/// Catches the signals for as long as the program runs. One object per process, as the handlers are.
/// A second signal ends the program at once. A signal that is ignored at the start stays ignored.
class EndSignals {
  public:
    EndSignals();
    ~EndSignals() = default;
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    EndSignals(EndSignals&&) = delete;
    EndSignals& operator=(EndSignals&&) = delete;

    /// A pipe that becomes readable with the first signal, for an event loop or poll().
    [[nodiscard]] int descriptor() const { return read_end_; }
    [[nodiscard]] bool received() const;
    /// Ends the process by the received signal, so that its parent sees why. Does nothing without one.
    void passOn() const;

  private:
    int read_end_ = -1;
};

}  // namespace mero::app
