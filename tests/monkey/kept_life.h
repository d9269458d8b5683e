// SPDX-License-Identifier: MIT
/// A life that is saved and opened in a fresh program, which then must do the same as the one that went on.
#pragma once

#include <cstdint>
#include <string>

#include "monkey/sandbox_folder.h"
#include "monkey/shrink.h"

namespace mero::monkey {

/// Does a line ask for what a project does not keep: dialogs that are filled afresh, documents shown?
[[nodiscard]] bool asksForWhatIsNotKept(const std::string& line);

/// One life in three parts.
struct KeptLife {
    Script before;      ///< until the project is saved
    Script after;       ///< all types calculated, all tabs, then more random actions
    std::string fault;  ///< the first difference, empty when there is none
};

/// @param going_on the folder of the program that goes on
/// @param opening  the folder of the program that opens the project
/// @param actions  random actions before the project is saved
[[nodiscard]] KeptLife liveKept(const SandboxFolder& going_on, const SandboxFolder& opening,
                                std::uint64_t seed, int actions);

}  // namespace mero::monkey
