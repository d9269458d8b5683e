// SPDX-License-Identifier: MIT
/// Limits and surroundings of the reader, set before the database library sees a byte.
/// The library crashes or never ends on some damaged files; here that costs little.
#pragma once

namespace mero::rain {

/// Bounds memory and processor time, writes no core file, and clears the variables that change the library's
/// answers.
void setLimits();

/// The former standard streams, as descriptors; -1 when there is none.
struct Streams {
    int output;
    int errors;
};

/// Keeps the standard streams for the caller alone: what the library prints there, millions of lines for some
/// damaged files, goes to /dev/null.
[[nodiscard]] Streams takeStandardStreams();

}  // namespace mero::rain
