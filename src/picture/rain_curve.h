// SPDX-License-Identifier: MIT
/// Makes the curve of the design rain: nine intensities over their durations.
#pragma once

#include "calc/rain.h"
#include "picture/chart.h"

namespace mero::picture {

/// Rows without a positive duration are ignored; the others are sorted by duration.
/// @param picked the picked rain, marked when it is one of the rows
[[nodiscard]] Chart rainCurve(calc::RainTable rains, const calc::Rain& picked);

}  // namespace mero::picture
