// SPDX-License-Identifier: MIT
/// The coefficients of the subdaily reduction.
#include "rain/daily_total.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <stdexcept>

#include "platform/numbers/number_text.h"
#include "rain/durations.h"

namespace mero::rain {
namespace {

struct Coefficients {
    double a;
    double c;
};

constexpr std::array<int, 6> kReturnPeriods{2, 5, 10, 20, 50, 100};
/// For durations below 40 min, below 120 min, and up to a day.
constexpr std::array<std::array<Coefficients, 3>, kReturnPeriods.size()> kCoefficients{{
    {{{0.166, 0.701}, {0.237, 0.803}, {0.235, 0.801}}},
    {{{0.171, 0.688}, {0.265, 0.803}, {0.324, 0.845}}},
    {{{0.163, 0.656}, {0.280, 0.803}, {0.380, 0.867}}},
    {{{0.169, 0.648}, {0.300, 0.803}, {0.463, 0.894}}},
    {{{0.174, 0.638}, {0.323, 0.803}, {0.580, 0.925}}},
    {{{0.173, 0.625}, {0.335, 0.803}, {0.642, 0.939}}},
}};
constexpr double kFirstBreak_min = 40.0;
constexpr double kSecondBreak_min = 120.0;

/// No rain of a day on record comes near; more is a slip of the pen.
constexpr double kLargestTotal_mm = 2000.0;

const Coefficients& coefficients(int return_period_years, double duration_min) {
    const auto found = std::ranges::find(kReturnPeriods, return_period_years);
    if (found == kReturnPeriods.end()) {
        throw std::invalid_argument(
            "redukce je známa jen pro doby opakování 2, 5, 10, 20, 50 a 100 let, ne pro " +
            numbers::general(return_period_years));
    }
    const auto& row = kCoefficients[static_cast<std::size_t>(found - kReturnPeriods.begin())];
    const std::size_t part = duration_min < kFirstBreak_min ? 0 : duration_min < kSecondBreak_min ? 1 : 2;
    return row[part];
}

}  // namespace

std::span<const int> reducibleReturnPeriods() {
    return kReturnPeriods;
}

double reducedDepth(double total_mm, int return_period_years, double duration_min) {
    if (!(total_mm > 0.0) || total_mm > kLargestTotal_mm) {
        throw std::invalid_argument("úhrn za 24 hodin musí být kladný a nejvýše " +
                                    numbers::general(kLargestTotal_mm) + " mm");
    }
    if (!(duration_min >= kShortestReduced_min) || duration_min > kLongestReduced_min) {
        throw std::invalid_argument("redukce denního úhrnu platí pro 5 min až 24 h");
    }
    const Coefficients& of = coefficients(return_period_years, duration_min);
    return total_mm * of.a * std::pow(duration_min, 1.0 - of.c);
}

RainCurve curveOfDailyTotal(double total_mm, int return_period_years) {
    std::set<double> durations;
    for (const DurationSet& set : durationSets()) {
        durations.insert(set.durations_min.begin(), set.durations_min.end());
    }
    std::vector<CurvePoint> points;
    for (const double duration : durations) {
        if (duration <= kLongestReduced_min) {
            points.push_back(
                {duration,
                 intensityOfDepth(reducedDepth(total_mm, return_period_years, duration), duration)});
        }
    }
    return RainCurve(std::move(points));
}

}  // namespace mero::rain
