// SPDX-License-Identifier: MIT
/// Lays out sections and charts on a sheet of any size, for texts of any size.
/// Labels that do not fit are dropped, the least important first. A sheet that is too small stays empty.
#pragma once

#include "picture/chart.h"
#include "picture/drawing.h"
#include "picture/line_chart.h"
#include "picture/section.h"

namespace mero::picture {

/// Draws the section to scale, with dimension lines, levels and notes. A direction that would be too flat to
/// be legible is stretched, and a note says so.
[[nodiscard]] Drawing arrange(const Section& section, const Sheet& sheet, const TextSizes& sizes);

/// Draws bars, or a curve over a logarithmic axis; the value axis starts at 0.
[[nodiscard]] Drawing arrange(const Chart& chart, const Sheet& sheet, const TextSizes& sizes);

/// Draws the series with ticks on both axes and the legend on the right. Values that a logarithmic axis
/// cannot show interrupt their line.
[[nodiscard]] Drawing arrange(const LineChart& chart, const Sheet& sheet, const TextSizes& sizes);

}  // namespace mero::picture
