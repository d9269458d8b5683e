// SPDX-License-Identifier: MIT
/// A life as a script for the real programs, which know no sandbox.
/// It writes nothing outside the program's folder, and asks for everything now and then.
#pragma once

#include "monkey/run.h"

namespace mero::monkey {

/// Without the answers to the save dialog that lead out of the program's folder; with a look at every control
/// and at the shared values after each 250 actions and at the end.
[[nodiscard]] Script written(const SandboxFolder& sandbox, const Script& life);

}  // namespace mero::monkey
