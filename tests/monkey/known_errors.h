// SPDX-License-Identifier: MIT
/// Which run-time errors an action can give. Any other error is a fault.
/// The table is derived from what the handlers of each control compute, not from observed errors.
#pragma once

#include <string>
#include <string_view>

#include "automation/script_line.h"
#include "platform/numbers/runtime_error.h"

namespace mero::monkey {

/// The control that a line acts on, with its form (`frmCalc.txtHPV`); empty for lines such as `tick`.
[[nodiscard]] std::string targetOf(const std::vector<automation::Word>& words);

/// True when the action can give this error.
[[nodiscard]] bool isKnown(const RuntimeError& error, const std::vector<automation::Word>& words);

}  // namespace mero::monkey
