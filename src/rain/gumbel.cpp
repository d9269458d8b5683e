// SPDX-License-Identifier: MIT
/// Sample L-moments and the distributions that have them.
#include "rain/gumbel.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <random>
#include <stdexcept>
#include <vector>

namespace mero::rain {
namespace {

/// The reduced variable of Gumbel's distribution.
double reduced(double return_period_years) {
    return -std::log(-std::log1p(-1.0 / return_period_years));
}

constexpr int kDraws = 4000;
constexpr std::uint32_t kSeed = 20240501;
constexpr double kTail = 0.025;

}  // namespace

LMoments lMoments(std::span<const double> values) {
    if (values.size() < 2) {
        throw std::invalid_argument("dvě hodnoty jsou nejméně");
    }
    std::vector<double> sorted(values.begin(), values.end());
    std::ranges::sort(sorted);
    const auto count = static_cast<double>(sorted.size());
    double sum = 0.0;
    double weighted = 0.0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        sum += sorted[i];
        weighted += sorted[i] * static_cast<double>(i);
    }
    const double mean = sum / count;
    return {mean, 2.0 * weighted / (count * (count - 1.0)) - mean};
}

double Gumbel::quantile(double return_period_years) const {
    return location + scale * reduced(return_period_years);
}

Gumbel fitGumbel(std::span<const double> annual_maxima) {
    const LMoments moments = lMoments(annual_maxima);
    const double scale = moments.scale / std::numbers::ln2;
    return {moments.mean - std::numbers::egamma * scale, scale};
}

double Exponential::quantile(double return_period_years) const {
    return threshold + scale * std::log(peaks_per_year * return_period_years);
}

Exponential fitExponential(std::span<const double> peaks, double years) {
    const LMoments moments = lMoments(peaks);
    const double scale = 2.0 * moments.scale;
    return {moments.mean - scale, scale, static_cast<double>(peaks.size()) / years};
}

BoundFactors boundFactors95(std::size_t years, double return_period_years) {
    constexpr Gumbel kStandard{0.0, 1.0};
    std::mt19937 random(kSeed);
    constexpr double kRange = 4294967296.0;
    std::vector<double> sample(years);
    std::vector<double> missed(kDraws);
    for (double& miss : missed) {
        for (double& value : sample) {
            value = -std::log(-std::log((static_cast<double>(random()) + 0.5) / kRange));
        }
        const Gumbel drawn = fitGumbel(sample);
        miss = (drawn.quantile(return_period_years) - kStandard.quantile(return_period_years)) / drawn.scale;
    }
    std::ranges::sort(missed);
    const auto at = [&missed](double share) {
        return missed[static_cast<std::size_t>(share * (kDraws - 1))];
    };
    return {at(1.0 - kTail), -at(kTail)};
}

Bounds boundsOf(const Gumbel& fit, double return_period_years, BoundFactors factors) {
    const double estimate = fit.quantile(return_period_years);
    return {estimate - factors.below * fit.scale, estimate + factors.above * fit.scale};
}

}  // namespace mero::rain
