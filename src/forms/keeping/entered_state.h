// SPDX-License-Identifier: MIT
/// The state of a window into which the inputs of a document were entered.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

#include "forms/keeping/project_file.h"
#include "forms/keeping/window_state.h"

namespace mero::forms {

/// Enters what can be taken into a window that nobody sees.
/// @param remarks gets what could not, in Czech
[[nodiscard]] WindowState enteredState(const nlohmann::json& document, const ProjectSource& source,
                                       std::vector<std::string>& remarks);

}  // namespace mero::forms
