// SPDX-License-Identifier: MIT
/// Steps of 1, 2 or 5 times a power of ten; whole decades on a logarithmic scale.
#include "sweep/scale.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers/number_text.h"

namespace mero::sweep {
namespace {

constexpr double kWantedSteps = 6.0;
/// What a multiple of a step or a decade may be off by: the values were rounded to Singles.
constexpr double kRounding = 1e-6;

double roundStep(double range) {
    const double rough = range / kWantedSteps;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= rough * (1.0 - kRounding)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

}  // namespace

Scale::Scale(const std::vector<double>& values, bool logarithmic, bool from_zero)
    : logarithmic_(logarithmic) {
    bool any = false;
    double low = 0.0;
    double high = 0.0;
    for (const double value : values) {
        if (logarithmic && value <= 0.0) {
            continue;
        }
        low = any ? std::min(low, value) : value;
        high = any ? std::max(high, value) : value;
        any = true;
    }
    if (!any) {
        low = logarithmic ? 1.0 : 0.0;
        high = logarithmic ? 10.0 : 1.0;
    }
    if (logarithmic) {
        roundLogarithmic(low, high);
    } else {
        roundLinear(from_zero ? std::min(low, 0.0) : low, from_zero ? std::max(high, 0.0) : high);
    }
}

void Scale::roundLinear(double low, double high) {
    if (high - low <= kRounding * std::max(std::fabs(low), std::fabs(high))) {
        const double room = high == 0.0 ? 1.0 : std::fabs(high) * 0.1;
        low -= room;
        high += room;
    }
    const double step = roundStep(high - low);
    const double first = std::floor(low / step + kRounding);
    const auto steps = static_cast<int>(std::ceil(high / step - kRounding) - first);
    for (int k = 0; k <= steps; ++k) {
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

double Scale::measure(double value) const {
    return logarithmic_ ? std::log10(value) : value;
}

std::optional<double> Scale::share(double value) const {
    if (logarithmic_ && value <= 0.0) {
        return std::nullopt;
    }
    return (measure(value) - low_) / (high_ - low_);
}

std::string tickText(double value, bool logarithmic) {
    constexpr double kSmallestPlain = 1e-2;
    constexpr double kLargestPlain = 1e4;
    if (logarithmic && (value < kSmallestPlain || value > kLargestPlain)) {
        return numbers::scientific(value, 0);
    }
    // Through a Single: its shortest text hides what the multiplication of the step left behind.
    return numbers::general(static_cast<float>(value));
}

}  // namespace mero::sweep
