// SPDX-License-Identifier: MIT
/// The JSON schema of project files, written from the tables of inputs and texts.
#pragma once

#include <string>

namespace mero::project {

/// The text of docs/project-file.schema.json, with a line break at its end.
[[nodiscard]] std::string schema();

}  // namespace mero::project
