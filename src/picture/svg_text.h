// SPDX-License-Identifier: MIT
/// Texts and numbers of SVG documents.
/// No fonts are read: text widths are estimated from those of DejaVu Sans, which is wider than Arial.
#pragma once

#include <string>
#include <string_view>

#include "picture/drawing.h"

namespace mero::picture {

/// Size of plain text [px].
inline constexpr double kSvgFontSize_px = 13.0;

/// Text sizes for a sheet that is written as SVG [px].
[[nodiscard]] TextSizes svgTextSizes(double font_size_px = kSvgFontSize_px);

/// Distance from the middle of a line of text down to its baseline [px].
[[nodiscard]] double svgBaseline(double font_size_px);

/// The text with the characters that XML reserves as entities, and without control characters.
[[nodiscard]] std::string xmlText(std::string_view text);

/// A number with two decimals and without digit grouping.
/// @throws RuntimeError Overflow when the value is not finite
[[nodiscard]] std::string svgNumber(double value);

/// A colour 0xRRGGBB as "#rrggbb".
[[nodiscard]] std::string svgColour(unsigned colour);

}  // namespace mero::picture
