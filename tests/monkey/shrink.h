// SPDX-License-Identifier: MIT
/// Finds a short part of a script that still reproduces a fault, by removing smaller and smaller pieces.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace mero::monkey {

using Script = std::vector<std::string>;

/// @param script a script that reproduces the fault
/// @param shows  returns true when a shorter script reproduces it too
/// @return a script from which no single line can be removed
[[nodiscard]] Script shrink(Script script, const std::function<bool(const Script&)>& shows);

}  // namespace mero::monkey
