// SPDX-License-Identifier: MIT
/// Runs a program within a time limit. Whatever it does, the call ends in time and leaves no process behind.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace mero::app {

struct ProgramEnd {
    enum class Kind {
        Exited,      ///< by itself; see exit_status
        Crashed,     ///< by a signal
        TimeLimit,   ///< killed: it exceeded the time limit
        NotStarted,  ///< the program does not exist
    };
    Kind kind = Kind::NotStarted;
    int exit_status = 0;
};

/// Runs a program without a shell and waits for its end. It gets no input, and its output is discarded. At
/// the time limit it is killed with all processes that it started.
/// @param command path of the program and its arguments
[[nodiscard]] ProgramEnd runProgram(std::vector<std::string> command, std::chrono::milliseconds time_limit);

}  // namespace mero::app
