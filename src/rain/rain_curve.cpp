// SPDX-License-Identifier: MIT
/// Interpolates in logarithms, in which a rain's curve is nearly straight.
#include "rain/rain_curve.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "platform/numbers/number_text.h"

namespace mero::rain {
namespace {

constexpr double kLitresPerMillimetreHectare = 10000.0;
constexpr double kSecondsPerMinute = 60.0;
constexpr double kMinutesPerHour = 60.0;

bool isPositive(double value) {
    return std::isfinite(value) && value > 0.0;
}

std::string minutes(const CurvePoint& point) {
    return numbers::general(point.duration_min) + " min";
}

}  // namespace

double intensityOfDepth(double depth_mm, double duration_min) {
    return depth_mm * kLitresPerMillimetreHectare / (duration_min * kSecondsPerMinute);
}

double depthOfIntensity(double intensity_l_s_ha, double duration_min) {
    return intensity_l_s_ha * duration_min * kSecondsPerMinute / kLitresPerMillimetreHectare;
}

double intensityOfRate(double rate_mm_h) {
    return intensityOfDepth(rate_mm_h, kMinutesPerHour);
}

RainCurve::RainCurve(std::vector<CurvePoint> points) : points_(std::move(points)) {
    if (points_.empty()) {
        throw std::invalid_argument("chybí hodnoty");
    }
    for (const CurvePoint& point : points_) {
        if (!isPositive(point.duration_min)) {
            throw std::invalid_argument("doba trvání musí být kladná");
        }
        if (!isPositive(point.intensity_l_s_ha)) {
            throw std::invalid_argument("intenzita pro " + minutes(point) + " musí být kladná");
        }
    }
    std::ranges::sort(points_, {}, &CurvePoint::duration_min);
    const auto twice = std::ranges::adjacent_find(points_, {}, &CurvePoint::duration_min);
    if (twice != points_.end()) {
        throw std::invalid_argument("doba " + minutes(*twice) + " je zadána dvakrát");
    }
}

std::optional<double> RainCurve::at(double duration_min) const {
    const auto upper = std::ranges::lower_bound(points_, duration_min, {}, &CurvePoint::duration_min);
    if (upper == points_.end()) {
        return std::nullopt;
    }
    if (upper->duration_min == duration_min) {
        return upper->intensity_l_s_ha;
    }
    if (upper == points_.begin()) {
        return std::nullopt;
    }
    const CurvePoint& lower = *std::prev(upper);
    const double share =
        std::log(duration_min / lower.duration_min) / std::log(upper->duration_min / lower.duration_min);
    return lower.intensity_l_s_ha * std::pow(upper->intensity_l_s_ha / lower.intensity_l_s_ha, share);
}

bool RainCurve::isGiven(double duration_min) const {
    return std::ranges::binary_search(points_, duration_min, {}, &CurvePoint::duration_min);
}

std::vector<std::string> RainCurve::remarks() const {
    std::vector<std::string> found;
    for (std::size_t i = 1; i < points_.size(); ++i) {
        const CurvePoint& shorter = points_[i - 1];
        const CurvePoint& longer = points_[i];
        if (longer.intensity_l_s_ha >= shorter.intensity_l_s_ha) {
            found.push_back("Intenzita pro " + minutes(longer) + " není menší než pro " + minutes(shorter) +
                            ".");
        } else if (depthOfIntensity(longer.intensity_l_s_ha, longer.duration_min) <
                   depthOfIntensity(shorter.intensity_l_s_ha, shorter.duration_min)) {
            found.push_back("Úhrn za " + minutes(longer) + " je menší než za " + minutes(shorter) + ".");
        }
    }
    return found;
}

}  // namespace mero::rain
