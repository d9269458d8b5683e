// SPDX-License-Identifier: MIT
/// Names of tables and columns are the same in any case of their letters.
#pragma once

#include <algorithm>
#include <string_view>

namespace mero::data::jet {

[[nodiscard]] constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

[[nodiscard]] constexpr bool isSameName(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, {}, lowerCase, lowerCase);
}

}  // namespace mero::data::jet
