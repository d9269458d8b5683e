// SPDX-License-Identifier: MIT
/// Colours and patterns of SVG drawings.
/// They are chosen for white paper; materials that touch each other differ in a monochrome copy too.
#pragma once

#include <string>

#include "picture/shapes.h"

namespace mero::picture {

inline constexpr unsigned kSvgPaper = 0xffffff;

/// Colours as 0xRRGGBB.
[[nodiscard]] unsigned svgFill(Material material);
[[nodiscard]] unsigned svgInk(Stroke stroke);

/// Identifier of the pattern that is painted over the fill; empty for a plain fill.
[[nodiscard]] std::string svgPatternId(Material material);

/// The `pattern` element of a patterned material, with a line break.
/// @param line_height height of a line of text [px]
[[nodiscard]] std::string svgPattern(Material material, double line_height);

}  // namespace mero::picture
