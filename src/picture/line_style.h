// SPDX-License-Identifier: MIT
/// Widths, dashes and marks of lines, the same for all painters.
/// Series numbers repeat their dashes after four and their colours after six.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "picture/drawing.h"

namespace mero::picture {

/// Width of a line.
/// @param line_height height of a line of text in the same unit
[[nodiscard]] double strokeWidth(Stroke stroke, double line_height);

/// Lengths of dashes and gaps in turn, in multiples of the line's width; empty for a solid line.
[[nodiscard]] std::vector<double> dashesOf(const PlacedLine& line);

/// Dark colours on white paper, as 0xRRGGBB.
[[nodiscard]] std::uint32_t seriesColour(std::size_t series);

/// Radius of a mark.
/// @param line_height height of a line of text in the same unit
[[nodiscard]] double markRadius(double line_height);
/// Whether the mark is filled with the colour of its series; otherwise with that of the paper.
[[nodiscard]] bool isFilled(const PlacedMark& mark);
/// Corners of a square or triangular mark; empty for a circle.
[[nodiscard]] std::vector<Point> cornersOf(const PlacedMark& mark);

}  // namespace mero::picture
