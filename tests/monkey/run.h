// SPDX-License-Identifier: MIT
/// Lives of the monkey. In each life a new program is started and acted on until it ends or the number of
/// actions is reached.
#pragma once

#include <cstdint>
#include <string>

#include "monkey/generator.h"
#include "monkey/sandbox_folder.h"
#include "monkey/shrink.h"

namespace mero::monkey {

/// Result of one life.
struct Life {
    Script script;       ///< the actions
    std::string fault;   ///< the fault at its last line, empty when there was none
    bool ended = false;  ///< the program ended before the number of actions was reached
};

/// @param actions maximum number of actions of the life
[[nodiscard]] Life live(const SandboxFolder& sandbox, std::uint64_t seed, int actions, Generator::Life kind);

/// The fault that the script reproduces, empty for none. Lines that cannot be performed are skipped.
[[nodiscard]] std::string replay(const SandboxFolder& sandbox, const Script& script);

/// The shortest script that reproduces a fault of the same kind.
[[nodiscard]] Script shortest(const SandboxFolder& sandbox, const Life& life);

}  // namespace mero::monkey
