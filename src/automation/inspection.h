// SPDX-License-Identifier: MIT
/// Queries of a script: the state of a control and the shared values, as trace lines.
/// A query changes nothing and is always answered, also for hidden controls.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "automation/json_line.h"
#include "forms/calc/program.h"
#include "platform/controls/control.h"

namespace mero::automation {

/// The line of `get`: kind, own enabled and visible state, and the content, which depends on the kind.
/// @param name the control's name as the script wrote it
[[nodiscard]] JsonLine stateOf(const std::string& name, const platform::Control& control);

/// JSON text of a shared value, or of the stored value of a box; empty for an unknown name.
[[nodiscard]] std::optional<std::string> sharedValue(forms::Program& program, std::string_view name);

}  // namespace mero::automation
