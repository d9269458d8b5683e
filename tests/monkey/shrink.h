// SPDX-License-Identifier: MIT
/// The shortest part of a script that still shows a fault, by leaving out ever smaller pieces.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace mero::monkey {

using Script = std::vector<std::string>;

/// @param script a script that shows the fault
/// @param shows  whether a shorter one shows it, too
/// @return a script of which no single line can be left out
[[nodiscard]] Script shrink(Script script, const std::function<bool(const Script&)>& shows);

}  // namespace mero::monkey
