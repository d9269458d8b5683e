// SPDX-License-Identifier: MIT
/// Where the user's own files of this program belong.
#pragma once

#include <optional>
#include <string>

namespace mero::platform {

enum class UserFolder {
    Data,    ///< $XDG_DATA_HOME/mero, by default ~/.local/share/mero
    Config,  ///< $XDG_CONFIG_HOME/mero, by default ~/.config/mero
    State,   ///< $XDG_STATE_HOME/mero, by default ~/.local/state/mero
};

/// The full path; the folder itself may not exist. A variable that is empty or holds a relative path counts
/// as not set.
/// @return nothing when neither the variable of the kind nor HOME says where: no folder may be made then,
///         because it would be made in the current or in the root folder
[[nodiscard]] std::optional<std::string> userFolder(UserFolder kind);

}  // namespace mero::platform
