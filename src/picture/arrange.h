// SPDX-License-Identifier: MIT
/// Sets pictures out on a sheet.
/// What does not fit is left out, the least important first; on a sheet that is too small nothing is drawn.
#pragma once

#include "picture/chart.h"
#include "picture/drawing.h"
#include "picture/section.h"

namespace mero::picture {

/// The section to scale, with dimension lines, levels and notes. Where one direction would be too flat to be
/// seen, it is stretched, and a note says so.
[[nodiscard]] Drawing arrange(const Section& section, const Sheet& sheet, const TextSizes& sizes);

[[nodiscard]] Drawing arrange(const Chart& chart, const Sheet& sheet, const TextSizes& sizes);

}  // namespace mero::picture
