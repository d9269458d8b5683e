// SPDX-License-Identifier: MIT
/// Writes a life as a script for the real programs, which have no sandbox.
/// The script writes nothing outside the program's folder, and queries the whole state now and then.
#pragma once

#include "monkey/run.h"

namespace mero::monkey {

/// The life without answers to the save dialog that lead out of the program's folder, and with a query of
/// every control and of the shared values after each 250 actions and at the end.
[[nodiscard]] Script written(const SandboxFolder& sandbox, const Script& life);

}  // namespace mero::monkey
