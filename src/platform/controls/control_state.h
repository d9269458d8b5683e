// SPDX-License-Identifier: MIT
/// What a control holds at one moment, as a value. Captions of buttons and labels are not in it: they stay.
#pragma once

#include <string>
#include <vector>

namespace mero::platform {

/// Members that a kind of control does not have keep their defaults.
struct ControlState {
    bool enabled = true;
    bool visible = true;
    bool greyed = false;             ///< text box
    bool chosen = false;             ///< option button: selected; check box: checked
    int position = -1;               ///< selected entry of a list
    int left = 0;                    ///< place of a panel [twips]
    int top = 0;                     ///< place of a panel [twips]
    std::string text;                ///< text box
    std::vector<std::string> items;  ///< entries of a list

    friend bool operator==(const ControlState&, const ControlState&) = default;
};

}  // namespace mero::platform
