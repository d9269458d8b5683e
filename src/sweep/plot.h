// SPDX-License-Identifier: MIT
/// Plots a sweep: one result over one varied value, one line per value of a second one.
/// Further varied values stay at their first value; the subtitle names them.
#pragma once

#include <stdexcept>
#include <string>

#include "picture/line_chart.h"
#include "project/prepare_site.h"
#include "sweep/variants.h"

namespace mero::sweep {

using Chart = picture::LineChart;

/// What to draw. The program chooses for empty members.
struct PlotWish {
    std::string result;  ///< `storage_volume_m3`; by default the main result of the type
    std::string over;    ///< path of the horizontal axis; by default the first varied number
    std::string lines;   ///< path of the lines; by default the first other varied value
};

/// Designs the variants and collects what to draw.
/// @throws VariationError when the wish does not fit what is varied
[[nodiscard]] Chart plotOf(const Variants& variants, const project::RainStore& rain, const PlotWish& wish);

/// The chart as an SVG document.
[[nodiscard]] std::string plotSvg(const Chart& chart);

/// Checks the wish without designing. @throws VariationError
void checkPlot(const Variants& variants, const PlotWish& wish);

}  // namespace mero::sweep
