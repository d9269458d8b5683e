/// Limits and surroundings of the reader, set before the database library sees a byte.
/// The library crashes or never ends on some damaged files; here that costs little.
#pragma once

namespace mero::rain {

/// Bounds memory and processor time, writes no core file, and clears the variables that change the library's
/// answers.
void setLimits();

/// Keeps standard output for the caller alone: what the library prints there goes to /dev/null.
/// @return the descriptor that leads to the former standard output, or -1
[[nodiscard]] int takeStandardOutput();

}  // namespace mero::rain
