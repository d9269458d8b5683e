// SPDX-License-Identifier: MIT
/// Runs a small program and reads its output, within limits of time and size.
/// Whatever the program does, the call ends in time and leaves no process behind.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace mero::data {

/// Time limit for reading a station's table.
inline constexpr std::chrono::milliseconds kReaderTimeLimit{2000};

/// How a program ended and what it printed.
struct ReaderResult {
    enum class Ending {
        Exited,       ///< by itself; see exit_status
        Crashed,      ///< by a signal
        TimeLimit,    ///< stopped: it exceeded the time limit
        OutputLimit,  ///< stopped: it printed more than any station table needs
        NotStarted,   ///< the program does not exist
    };
    Ending ending = Ending::NotStarted;
    int exit_status = 0;
    std::string output;
};

/// Runs a program without a shell, and waits for its end and the end of its output.
///
/// It gets no input, its error output is discarded, and the variables that change the database library's
/// results are removed from its environment. At the time limit it is killed with all processes it started.
/// @param command path of the program and its arguments
[[nodiscard]] ReaderResult runReader(const std::vector<std::string>& command,
                                     std::chrono::milliseconds time_limit = kReaderTimeLimit);

}  // namespace mero::data
