// SPDX-License-Identifier: MIT
/// The numbers of a range: arithmetic steps or a constant ratio.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mero::sweep {

/// Most values that one variation takes.
inline constexpr std::size_t kMostValues = 100'000;

struct NumberRange {
    std::vector<double> numbers;
    bool logarithmic = false;
};

/// The numbers of FROM:TO:STEP or log:FROM:TO:COUNT; nothing when the text is no range.
/// @throws std::invalid_argument with the reason when it is a range that cannot be used
[[nodiscard]] std::optional<NumberRange> numberRange(std::string_view text);

/// The parts of a text between the separators; empty parts are kept.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);

}  // namespace mero::sweep
