// SPDX-License-Identifier: MIT
/// Breaks texts into lines and centres them.
/// Lines break at blanks only, and not behind a number.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "picture/drawing.h"

namespace mero::picture {

/// The text in lines no wider than `width`; empty when a single word is wider.
[[nodiscard]] std::vector<std::string> brokenLines(std::string_view text, double width,
                                                   const TextSizes& sizes,
                                                   Emphasis emphasis = Emphasis::Plain);

/// A line of text centred at `centre_x`, shifted to lie between `left` and `right`.
[[nodiscard]] PlacedText centredText(std::string text, double centre_x, double top, double left, double right,
                                     const TextSizes& sizes, Emphasis emphasis);

/// A text in the middle of the sheet; nothing when it does not fit.
[[nodiscard]] Drawing onlyText(std::string_view text, const Sheet& sheet, const TextSizes& sizes);

}  // namespace mero::picture
