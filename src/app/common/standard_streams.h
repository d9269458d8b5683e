// SPDX-License-Identifier: MIT
/// Standard input, output and error output, whatever the program was started with.
/// Without them the next file that is opened takes their place, and gets what is printed.
#pragma once

namespace mero::app {

/// Puts something in the place of each of the three that is closed: input that is at its end, outputs that
/// fail.
void holdStandardStreams();

/// Says on error output that the trace could not be written. The exit status for that.
[[nodiscard]] int traceFailed(const char* program);

}  // namespace mero::app
