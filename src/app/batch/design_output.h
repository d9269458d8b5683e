// SPDX-License-Identifier: MIT
/// The results of one design as text for people and as JSON for programs.
#pragma once

#include <string>

#include "design/design_result.h"
#include "project/project.h"

namespace mero::app {

/// Results and messages in lines; a result that the design has not is a dash.
[[nodiscard]] std::string resultTable(const project::Project& project, const design::DesignResult& result);

/// One JSON object: type, results by their names (null for those that the design has not), messages.
[[nodiscard]] std::string resultJson(const project::Project& project, const design::DesignResult& result);

}  // namespace mero::app
