// SPDX-License-Identifier: MIT
/// Formats the results of one design as a text table and as JSON.
#pragma once

#include <string>

#include "design/design_result.h"
#include "project/project.h"

namespace mero::app {

/// A table of results and messages; a missing result is printed as a dash.
[[nodiscard]] std::string resultTable(const project::Project& project, const design::DesignResult& result);

/// One JSON object: type, results by name (null when missing), messages.
[[nodiscard]] std::string resultJson(const project::Project& project, const design::DesignResult& result);

}  // namespace mero::app
