// SPDX-License-Identifier: MIT
/// Intensities of short rains from the 24-hour total of the same return period.
#pragma once

#include <span>

#include "rain/rain_curve.h"

namespace mero::rain {

/// Return periods [years] for which the reduction is known.
[[nodiscard]] std::span<const int> reducibleReturnPeriods();

inline constexpr double kShortestReduced_min = 5.0;
inline constexpr double kLongestReduced_min = 1440.0;

/// The depth [mm] of a duration, from the total of 24 hours.
///
/// H_t = H_24 · a · t^(1 - c), with a and c by return period and duration (below 40, below 120, up to
/// 1440 min): the subdaily reduction of Czech practice, published by the Czech Technical University in
/// Prague.
/// @param total_mm      of 24 hours, positive
/// @param duration_min  kShortestReduced_min to kLongestReduced_min
/// @throws std::invalid_argument in Czech for a total, return period or duration out of range
[[nodiscard]] double reducedDepth(double total_mm, int return_period_years, double duration_min);

/// The curve over all durations of the sets that lie in the range. @throws std::invalid_argument
[[nodiscard]] RainCurve curveOfDailyTotal(double total_mm, int return_period_years);

}  // namespace mero::rain
