// SPDX-License-Identifier: MIT
/// Where the program keeps files for its user. Without a home nothing is kept.
#pragma once

#include <string>

namespace mero::app {

/// The file of conveniences, in `$XDG_CONFIG_HOME/mero` or `~/.config/mero`; empty when neither variable
/// holds an absolute path.
[[nodiscard]] std::string preferencesFile();
/// The folder of recovery copies, in `$XDG_DATA_HOME/mero` or `~/.local/share/mero`; empty likewise.
[[nodiscard]] std::string recoveryFolder();

}  // namespace mero::app
