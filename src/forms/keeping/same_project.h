// SPDX-License-Identifier: MIT
/// Whether two states are the same to a user.
#pragma once

#include "forms/keeping/window_state.h"

namespace mero::forms {

/// Opening a dialog for the first time sets the path of the rain database and says that values are own ones,
/// and entering the results puts break tags into the stored description: none of it is a change of the
/// project.
[[nodiscard]] bool isSameProject(WindowState state, const WindowState& other);

}  // namespace mero::forms
