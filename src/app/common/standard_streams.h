// SPDX-License-Identifier: MIT
/// Makes sure that descriptors 0, 1 and 2 are open.
/// Otherwise the next opened file would get one of these numbers and receive what is printed.
#pragma once

namespace mero::app {

/// Replaces each closed descriptor: input is at its end, writing to the outputs fails.
void holdStandardStreams();

/// Reports on standard error that the trace could not be written. @return the exit status
[[nodiscard]] int traceFailed(const char* program);

}  // namespace mero::app
