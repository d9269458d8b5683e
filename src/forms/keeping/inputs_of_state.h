// SPDX-License-Identifier: MIT
/// The inputs in a window's state as a project: what a design without the window reads of a file.
#pragma once

#include "forms/keeping/state_document.h"
#include "project/project.h"

namespace mero::forms {

/// Its `given` paths are those that the window holds: of the chosen type's panel all numbers, of the other
/// panels what differs from their defaults.
[[nodiscard]] project::Project inputsOf(const WindowState& state, const StateDocument& document);

}  // namespace mero::forms
