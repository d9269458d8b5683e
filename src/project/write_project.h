// SPDX-License-Identifier: MIT
/// Writes the inputs of a project as readProject() reads them.
#pragma once

#include <nlohmann/json_fwd.hpp>

#include "project/project.h"

namespace mero::project {

/// The shortest number that reads back to the same Single; a whole one without a point.
[[nodiscard]] nlohmann::ordered_json exactNumber(float value);

/// The sections of a document with the texts that are not empty, the areas, and the values whose paths are
/// given. Sections are never left out, except the texts.
[[nodiscard]] nlohmann::ordered_json inputsDocument(const Project& project);

}  // namespace mero::project
