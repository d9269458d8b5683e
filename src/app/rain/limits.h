// SPDX-License-Identifier: MIT
/// Sets limits and the environment of the reader before the database library is used.
/// The library crashes or never ends on some damaged files; the limits keep that harmless.
#pragma once

namespace mero::rain {

/// Limits memory and processor time, disables core files, and clears the environment variables that change
/// the library's results.
void setLimits();

/// Descriptors of the original standard streams; -1 for a missing one.
struct Streams {
    int output;
    int errors;
};

/// Moves the standard streams to new descriptors for the caller. Output of the library, millions of lines for
/// some damaged files, then goes to /dev/null.
[[nodiscard]] Streams takeStandardStreams();

}  // namespace mero::rain
