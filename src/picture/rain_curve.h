// SPDX-License-Identifier: MIT
/// The curve of the design rain: nine intensities over their durations.
#pragma once

#include "calc/rain.h"
#include "picture/chart.h"

namespace mero::picture {

/// Rows without a positive duration are left out; the others stand in the order of their durations.
/// @param picked the picked rain, marked when it is one of the rows
[[nodiscard]] Chart rainCurve(calc::RainTable rains, const calc::Rain& picked);

}  // namespace mero::picture
