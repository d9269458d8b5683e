// SPDX-License-Identifier: MIT
/// Distributions of extreme rains, fitted by L-moments.
#pragma once

#include <cstddef>
#include <span>

namespace mero::rain {

/// Mean and half the mean difference of two values drawn from the sample: its first two L-moments.
struct LMoments {
    double mean = 0.0;
    double scale = 0.0;
};

/// @param values two or more, in any order. @throws std::invalid_argument for fewer
[[nodiscard]] LMoments lMoments(std::span<const double> values);

/// Gumbel's distribution of annual maxima.
struct Gumbel {
    double location = 0.0;
    double scale = 0.0;

    /// The value that is exceeded in one of `return_period_years` years on average.
    /// @param return_period_years above 1
    [[nodiscard]] double quantile(double return_period_years) const;
};

/// The distribution whose first two L-moments are those of the sample:
/// scale = l2 / ln 2, location = l1 - 0.57722 · scale.
[[nodiscard]] Gumbel fitGumbel(std::span<const double> annual_maxima);

/// The exponential distribution of peaks above a threshold.
struct Exponential {
    double threshold = 0.0;
    double scale = 0.0;
    double peaks_per_year = 0.0;

    /// The value that is exceeded once in `return_period_years` on average.
    [[nodiscard]] double quantile(double return_period_years) const;
};

/// scale = 2 · l2, threshold = l1 - scale.
[[nodiscard]] Exponential fitExponential(std::span<const double> peaks, double years);

struct Bounds {
    double lower = 0.0;
    double upper = 0.0;
};

/// How far the bounds of a quantile lie from its estimate, in scales of the fit.
struct BoundFactors {
    double below = 0.0;
    double above = 0.0;
};

/// Factors of bounds that hold the true quantile in 95 of 100 cases.
///
/// What a fit of n years misses, in units of its own scale, is distributed alike for every Gumbel population.
/// This distribution is drawn from the standard population; the same numbers are drawn each time.
[[nodiscard]] BoundFactors boundFactors95(std::size_t years, double return_period_years);

[[nodiscard]] Bounds boundsOf(const Gumbel& fit, double return_period_years, BoundFactors factors);

}  // namespace mero::rain
