// SPDX-License-Identifier: MIT
/// Writes drawings as SVG documents.
/// Needs no window system and no fonts.
#pragma once

#include <string>

#include "picture/drawing.h"
#include "picture/svg_text.h"

namespace mero::picture {

/// The whole document in UTF-8, on white paper.
/// @param drawing laid out on `sheet` with svgTextSizes(font_size_px)
/// @param sheet its size [px]
/// @throws RuntimeError Overflow when a coordinate is not finite
[[nodiscard]] std::string svgDocument(const Drawing& drawing, const Sheet& sheet,
                                      double font_size_px = kSvgFontSize_px);

}  // namespace mero::picture
