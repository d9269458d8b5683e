// SPDX-License-Identifier: MIT
/// The chart of a sweep: one result over one varied value, one line per value of a second one.
#pragma once

#include <stdexcept>
#include <string>

#include "project/rain_store.h"
#include "sweep/svg.h"
#include "sweep/variants.h"

namespace mero::sweep {

/// What to draw; empty members are chosen.
struct PlotWish {
    std::string result;  ///< `storage_volume_m3`; by default the main result of the type
    std::string over;    ///< path of the horizontal axis; by default the first varied number
    std::string lines;   ///< path of the lines; by default the first other varied value
};

/// @throws VariationError when the wish does not fit what is varied
[[nodiscard]] Chart plotOf(const Variants& variants, const project::RainStore& rain, const PlotWish& wish);

/// The same checks without drawing.
void checkPlot(const Variants& variants, const PlotWish& wish);

}  // namespace mero::sweep
