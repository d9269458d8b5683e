// SPDX-License-Identifier: MIT
/// Checks a condition in a fuzz target: on failure prints it and aborts, so that the fuzzer keeps the input.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace mero::fuzz {

inline void require(bool holds, std::string_view what) {
    if (!holds) {
        std::cerr << "does not hold: " << what << std::endl;
        std::abort();
    }
}

}  // namespace mero::fuzz
