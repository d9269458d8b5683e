// SPDX-License-Identifier: MIT
/// Shared by the sections of several facilities: limits of sizes, texts, groundwater, pipes.
/// Sizes are in metres.
#pragma once

#include <algorithm>
#include <string>

#include "picture/facility_sections.h"
#include "picture/section.h"

namespace mero::picture {

/// Limits of the sizes that are drawn; no facility is smaller or larger.
inline constexpr double kSmallestDrawn_m = 0.01;
inline constexpr double kLargestDrawn_m = 10000.0;

[[nodiscard]] constexpr bool canDraw(double size_m) {
    return size_m >= kSmallestDrawn_m && size_m <= kLargestDrawn_m;
}

/// A section without a drawing: there is no result yet.
[[nodiscard]] Section sectionBeforeResults();
/// A section without a drawing: the values cannot be drawn.
[[nodiscard]] Section sectionOfOddValues();

/// An input as in its field: "1.2 m".
[[nodiscard]] std::string metres(float value);
/// A result with the decimals of its field: "0.24 m".
[[nodiscard]] std::string metres(float value, int decimals);

[[nodiscard]] Area rectangle(Material material, const Box& box);
/// Adds the four sides of a rectangle.
void addOutline(Section& section, const Box& box);

/// Width of a swale's bank on each side [m]: a slope of 1 : 2, at most half the bottom. The banks do not
/// count towards the infiltration area.
[[nodiscard]] constexpr double bankRun(double depth_m, double bottom_m) {
    return std::min(2.0 * depth_m, bottom_m / 2.0);
}

/// Adds the groundwater, if given, and enlarges the extent to show it. Groundwater far below the facility is
/// drawn below a break line.
/// @param unbroken_m depth to which the drawing may extend without a break
void addGroundwater(Section& section, float groundwater_depth_m, double unbroken_m);

/// The depth of the groundwater for a summary: ", hladina podzemní vody 3 m pod povrchem"; empty when not
/// given.
[[nodiscard]] std::string groundwaterPhrase(float groundwater_depth_m);

/// Adds pipes side by side on the bottom of a trench, or a note that they do not fit.
void addPipes(Section& section, const PipeValues& pipes, const Box& trench);

}  // namespace mero::picture
