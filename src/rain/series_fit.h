// SPDX-License-Identifier: MIT
/// From a measured series to the rains of a return period.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "rain/extremes.h"
#include "rain/gumbel.h"
#include "rain/rain_curve.h"

namespace mero::rain {

/// What the series says of one duration. Depths are those of fixed intervals, not corrected.
struct DurationFit {
    Extremes extremes;
    Gumbel annual;
    Exponential partial;
    double correction = 1.0;  ///< for the fixed interval; quantiles are multiplied by it
};

/// A depth and the bounds in which the true one lies in 95 of 100 cases. Corrected.
struct FittedDepth {
    double duration_min = 0.0;
    double depth_mm = 0.0;
    Bounds bounds_mm;  ///< equal to the depth for the partial series, which has none
};

/// Below this return period [years] the partial series is taken: a year's maximum says nothing of rains that
/// come each year.
inline constexpr double kShortestAnnualPeriod = 2.0;
inline constexpr std::size_t kFewestYears = 3;
inline constexpr std::size_t kYearsWanted = 10;

class SeriesFit {
  public:
    /// Fits all durations of the sets that are multiples of the interval.
    /// @throws std::invalid_argument in Czech when fewer than kFewestYears count
    explicit SeriesFit(const MeasuredSeries& series);

    [[nodiscard]] std::span<const DurationFit> durations() const { return durations_; }
    [[nodiscard]] std::span<const YearCoverage> years() const { return years_; }
    [[nodiscard]] std::size_t yearsUsed() const { return years_used_; }

    /// @throws std::invalid_argument in Czech for a return period that is not above 0 or beyond 1000 years
    [[nodiscard]] std::vector<FittedDepth> depths(double return_period_years) const;
    [[nodiscard]] RainCurve curve(double return_period_years) const;

    /// What a person should know of the fit at that return period, in Czech.
    [[nodiscard]] std::vector<std::string> remarks(double return_period_years) const;

  private:
    std::vector<YearCoverage> years_;
    std::size_t years_used_ = 0;
    int interval_min_ = 0;
    std::vector<DurationFit> durations_;
};

}  // namespace mero::rain
