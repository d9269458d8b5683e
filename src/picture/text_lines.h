// SPDX-License-Identifier: MIT
/// Texts in lines: broken at blanks to a width, and set centred on a sheet.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "picture/drawing.h"

namespace mero::picture {

/// The text in lines no wider than `width`; empty when a single word is wider.
[[nodiscard]] std::vector<std::string> brokenLines(std::string_view text, double width,
                                                   const TextSizes& sizes);

/// Sets a line of text with its middle at `centre_x`, moved so that it lies between `left` and `right`.
[[nodiscard]] PlacedText centredText(std::string text, double centre_x, double top, double left, double right,
                                     const TextSizes& sizes, Emphasis emphasis);

/// A sheet with nothing but a text in its middle; an empty one when the text does not fit.
[[nodiscard]] Drawing onlyText(std::string_view text, const Sheet& sheet, const TextSizes& sizes);

}  // namespace mero::picture
