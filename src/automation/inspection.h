// SPDX-License-Identifier: MIT
/// What a script can ask: the state of a control and the shared values, as trace lines.
/// Asking changes nothing and always answers, also for what is hidden.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "automation/json_line.h"
#include "forms/calc/program.h"
#include "platform/controls/control.h"

namespace mero::automation {

/// The line of `get`: kind, own enabled and visible state, and by kind its content.
/// @param name the control's name as the script wrote it
[[nodiscard]] JsonLine stateOf(const std::string& name, const platform::Control& control);

/// JSON text of a shared value, or of the stored value behind a box; nothing for an unknown name.
[[nodiscard]] std::optional<std::string> sharedValue(forms::Program& program, std::string_view name);

}  // namespace mero::automation
