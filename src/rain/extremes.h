// SPDX-License-Identifier: MIT
/// The largest depths of a measured series for each duration.
#pragma once

#include <numbers>
#include <span>
#include <vector>

#include "rain/measured_series.h"

namespace mero::rain {

/// A year counts when at least this share of its intervals was measured: a missing summer would pass for a
/// dry one.
inline constexpr double kLeastCoverage = 0.9;

struct YearCoverage {
    int year = 0;
    double share = 0.0;  ///< of the year's intervals that were measured
    [[nodiscard]] bool counts() const { return share >= kLeastCoverage; }
};

/// All years that the series touches.
[[nodiscard]] std::vector<YearCoverage> coverageOf(const MeasuredSeries& series);

struct YearMaximum {
    int year = 0;
    double depth_mm = 0.0;
};

/// Events are separated by at least this long without rain, and at least by the duration. The highest window
/// of an event counts once.
inline constexpr int kEventSeparation_min = 240;
/// Peaks of the partial series for each year: two to three are usual, Euler's number is taken.
inline constexpr double kPeaksPerYear = std::numbers::e;

struct Extremes {
    int duration_min = 0;
    std::vector<YearMaximum> annual;  ///< of the years that count
    std::vector<double> peaks_mm;     ///< the partial series of these years, falling
};

/// Sums in a moving window; a window with a missing interval is left out.
/// @param durations_min multiples of the interval; others are left out
[[nodiscard]] std::vector<Extremes> extremesOf(const MeasuredSeries& series,
                                               std::span<const int> durations_min);

/// By how much the largest sum of fixed intervals falls short of the true maximum, for windows of one, two,
/// three and four intervals 1.14, 1.07, 1.04 and 1.03, for longer ones 1: the factors of the German guideline
/// DWA-A 531 as a published evaluation quotes them.
[[nodiscard]] double intervalCorrection(int intervals);

}  // namespace mero::rain
