// SPDX-License-Identifier: MIT
/// Runs a small program and takes what it prints, within limits of time and size.
/// Whatever the program does, the call ends in time and leaves no process behind.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace mero::data {

/// How long reading a station's table may take.
inline constexpr std::chrono::milliseconds kReaderTimeLimit{2000};

/// How a program ended and what it printed.
struct ReaderResult {
    enum class Ending {
        Exited,       ///< by itself; see exit_status
        Crashed,      ///< by a signal
        TimeLimit,    ///< stopped: it took longer than it may
        OutputLimit,  ///< stopped: it printed more than any station table takes
        NotStarted,   ///< there is no such program
    };
    Ending ending = Ending::NotStarted;
    int exit_status = 0;
    std::string output;
};

/// Runs a program, without a shell, and waits for its end and the end of its output.
///
/// It sees no input, its error output is dropped, and the variables that change the database library's
/// answers are not in its environment. At the time limit it is killed with all that it started.
/// @param command path of the program and its arguments
[[nodiscard]] ReaderResult runReader(const std::vector<std::string>& command,
                                     std::chrono::milliseconds time_limit = kReaderTimeLimit);

}  // namespace mero::data
