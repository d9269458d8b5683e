// SPDX-License-Identifier: MIT
/// Descriptions of any length made of short inputs.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace mero::fuzz {

/// The input after its first byte, which says how often it is repeated: once, ten times, up to 1,000 times,
/// while it is no longer than `most` bytes.
inline std::string repeatedInput(std::string_view input, std::size_t most) {
    if (input.empty()) {
        return {};
    }
    std::size_t times = 1;
    for (unsigned power = static_cast<unsigned char>(input.front()) % 4U; power > 0; --power) {
        times *= 10;
    }
    const std::string_view piece = input.substr(1);
    std::string text;
    while (times-- > 0 && text.size() + piece.size() <= std::max(most, piece.size())) {
        text += piece;
    }
    return text;
}

}  // namespace mero::fuzz
