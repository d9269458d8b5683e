// SPDX-License-Identifier: MIT
/// What the sections of several facilities share: which sizes can be drawn, texts, groundwater, pipes.
#pragma once

#include <algorithm>
#include <string>

#include "picture/facility_sections.h"
#include "picture/section.h"

namespace mero::picture {

/// Smaller and larger than any facility: beyond them there is nothing to be seen.
inline constexpr double kSmallestDrawn_m = 0.01;
inline constexpr double kLargestDrawn_m = 10000.0;

[[nodiscard]] constexpr bool canDraw(double size_m) {
    return size_m >= kSmallestDrawn_m && size_m <= kLargestDrawn_m;
}

/// A section without a drawing: there is no result yet.
[[nodiscard]] Section sectionBeforeResults();
/// A section without a drawing: the values cannot be drawn.
[[nodiscard]] Section sectionOfOddValues();

/// An input as its field shows it: "1.2 m".
[[nodiscard]] std::string metres(float value);
/// A result with its field's decimals: "0.24 m".
[[nodiscard]] std::string metres(float value, int decimals);

[[nodiscard]] Area rectangle(Material material, const Box& box);
/// The four sides of a rectangle.
void addOutline(Section& section, const Box& box);

/// How far the banks of a swale run out on each side [m]: 1 : 2, no further than half the bottom. They are no
/// part of the area that is counted.
[[nodiscard]] constexpr double bankRun(double depth_m, double bottom_m) {
    return std::min(2.0 * depth_m, bottom_m / 2.0);
}

/// Adds the groundwater, when it is given, and to the extent what it needs. Where it lies far below what
/// there is to be seen, the drawing is broken in between.
/// @param unbroken_m how deep the drawing may go without a break
void addGroundwater(Section& section, float groundwater_depth_m, double unbroken_m);

/// The depth of the groundwater for a sentence: ", hladina podzemní vody 3 m pod povrchem"; empty when it is
/// not given.
[[nodiscard]] std::string groundwaterPhrase(float groundwater_depth_m);

/// Adds pipes that lie side by side on the bottom of a trench, or a note that they do not fit into it.
void addPipes(Section& section, const PipeValues& pipes, const Box& trench);

}  // namespace mero::picture
