// SPDX-License-Identifier: MIT
/// Expands ranges into numbers: equal steps or a constant ratio.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mero::sweep {

/// The largest number of values of one variation.
inline constexpr std::size_t kMostValues = 100'000;

struct NumberRange {
    std::vector<double> numbers;
    bool logarithmic = false;
};

/// The numbers of FROM:TO:STEP or log:FROM:TO:COUNT; nothing when the text is not a range.
/// @throws std::invalid_argument with the reason when the range is invalid
[[nodiscard]] std::optional<NumberRange> numberRange(std::string_view text);

/// Splits a text at the separators; empty parts are kept.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);

}  // namespace mero::sweep
