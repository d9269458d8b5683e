// SPDX-License-Identifier: MIT
/// Computes ticks and shares.
/// On a logarithmic scale both ends are kept as decimal logarithms.
#include "picture/scale.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

/// What the logarithm of a decade may be off by: the values were rounded to Singles.
constexpr double kRounding = 1e-6;

/// The smallest step of 1, 2 or 5 times a power of ten that divides the range into at most `most_steps`.
double roundStep(double range, int most_steps) {
    const double power = std::pow(10.0, std::floor(std::log10(range / most_steps)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (range <= factor * power * most_steps) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

}  // namespace

Scale::Scale(const std::vector<double>& values, const ScaleOptions& options)
    : logarithmic_(options.logarithmic) {
    bool any = false;
    double low = 0.0;
    double high = 0.0;
    for (const double value : values) {
        if (logarithmic_ && value <= 0.0) {
            continue;
        }
        low = any ? std::min(low, value) : value;
        high = any ? std::max(high, value) : value;
        any = true;
    }
    if (!any) {
        low = logarithmic_ ? 1.0 : 0.0;
        high = logarithmic_ ? 10.0 : 1.0;
    }
    if (logarithmic_) {
        roundLogarithmic(low, high);
    } else {
        roundLinear(options.from_zero ? std::min(low, 0.0) : low,
                    options.from_zero ? std::max(high, 0.0) : high, options);
    }
}

Scale Scale::between(double low, double high, bool logarithmic) {
    Scale scale;
    scale.logarithmic_ = logarithmic;
    scale.low_ = scale.measure(low);
    scale.high_ = scale.measure(high);
    return scale;
}

void Scale::roundLinear(double low, double high, const ScaleOptions& options) {
    if (high - low <= kRounding * std::max(std::fabs(low), std::fabs(high))) {
        const double room = high == 0.0 ? 1.0 : std::fabs(high) * 0.1;
        low -= room;
        high += room;
    }
    const double step = roundStep((high - low) * (1.0 - options.tolerance), options.most_steps);
    const double first = std::floor(low / step + options.tolerance);
    ticks_.push_back(first * step);
    for (int k = 1; ticks_.back() < high - options.tolerance * step; ++k) {
        ticks_.push_back((first + k) * step);
    }
    low_ = ticks_.front();
    high_ = ticks_.back();
}

void Scale::roundLogarithmic(double low, double high) {
    const double first = std::floor(std::log10(low) + kRounding);
    const double last = std::max(std::ceil(std::log10(high) - kRounding), first + 1.0);
    for (int k = 0; k <= static_cast<int>(last - first); ++k) {
        ticks_.push_back(std::pow(10.0, first + k));
    }
    low_ = first;
    high_ = last;
}

std::vector<double> Scale::fineTicks() const {
    std::vector<double> fine;
    for (std::size_t i = 0; logarithmic_ && i + 1 < ticks_.size(); ++i) {
        for (int k = 2; k < 10; ++k) {
            fine.push_back(k * ticks_[i]);
        }
    }
    return fine;
}

std::string Scale::tickText(double tick) const {
    constexpr double kSmallestPlain = 1e-2;
    constexpr double kLargestPlain = 1e4;
    if (logarithmic_ && (tick < kSmallestPlain || tick > kLargestPlain)) {
        return numbers::scientific(tick, 0);
    }
    // As a Single: its shortest text hides the rounding error of the multiplication.
    return numbers::general(static_cast<float>(tick));
}

double Scale::measure(double value) const {
    return logarithmic_ ? std::log10(value) : value;
}

std::optional<double> Scale::share(double value) const {
    if (logarithmic_ && value <= 0.0) {
        return std::nullopt;
    }
    return high_ > low_ ? (measure(value) - low_) / (high_ - low_) : 0.5;
}

}  // namespace mero::picture
