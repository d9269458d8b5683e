// SPDX-License-Identifier: MIT
/// Which run-time errors an action can end in. Everything else that comes out of an action is a fault.
/// The table is worked out from what the handlers of each control compute, not from what was seen.
#pragma once

#include <string>
#include <string_view>

#include "automation/script_line.h"
#include "platform/numbers/runtime_error.h"

namespace mero::monkey {

/// The control that a line acts on, written with its form (`frmCalc.txtHPV`); empty for `tick` and the like.
[[nodiscard]] std::string targetOf(const std::vector<automation::Word>& words);

/// Whether the error may come out of that action.
[[nodiscard]] bool isKnown(const RuntimeError& error, const std::vector<automation::Word>& words);

}  // namespace mero::monkey
