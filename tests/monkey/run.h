// SPDX-License-Identifier: MIT
/// Lives of the monkey: a program is started, acted on until it ends or the life is over, and started again.
#pragma once

#include <cstdint>
#include <string>

#include "monkey/generator.h"
#include "monkey/sandbox_folder.h"
#include "monkey/shrink.h"

namespace mero::monkey {

/// What one life came to.
struct Life {
    Script script;       ///< what was done
    std::string fault;   ///< what broke at its last line, empty when nothing did
    bool ended = false;  ///< the program ended before the life was over
};

/// @param actions how many actions the life has at most
[[nodiscard]] Life live(const SandboxFolder& sandbox, std::uint64_t seed, int actions, Generator::Life kind);

/// The fault that the script shows, empty for none. Lines that cannot be followed are passed over.
[[nodiscard]] std::string replay(const SandboxFolder& sandbox, const Script& script);

/// The shortest script that shows a fault of the same kind.
[[nodiscard]] Script shortest(const SandboxFolder& sandbox, const Life& life);

}  // namespace mero::monkey
