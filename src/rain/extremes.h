// SPDX-License-Identifier: MIT
/// The largest depths of a measured series for each duration.
#pragma once

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

/// Peaks of one event count once: they lie at least this far apart, and at least the duration.
inline constexpr int kEventSeparation_min = 360;
/// Peaks of the partial series for each year: Euler's number, rounded.
inline constexpr double kPeaksPerYear = 2.7;

struct Extremes {
    int duration_min = 0;
    std::vector<YearMaximum> annual;  ///< of the years that count
    std::vector<double> peaks_mm;     ///< the partial series of these years, falling
};

/// Sums in a moving window; a window with a missing interval is left out.
/// @param durations_min multiples of the interval; others are left out
[[nodiscard]] std::vector<Extremes> extremesOf(const MeasuredSeries& series,
                                               std::span<const int> durations_min);

/// By how much the largest sum of fixed intervals falls short of the true maximum: 1.14 for a window of one
/// interval, fading as 1 + 0.14/n for n intervals.
[[nodiscard]] double intervalCorrection(int intervals);

}  // namespace mero::rain
