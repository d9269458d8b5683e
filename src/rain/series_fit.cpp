// SPDX-License-Identifier: MIT
/// Fits each duration on its own and tells where the fits cannot be trusted.
#include "rain/series_fit.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>

#include "platform/numbers/number_text.h"
#include "rain/durations.h"

namespace mero::rain {
namespace {

constexpr double kLongestReturnPeriod = 1000.0;
/// A fit reaches about this many times as far as its years.
constexpr double kReach = 3.0;

/// Those of the sets, and some between them, so that rows of other intervals are interpolated over short
/// ways.
std::vector<int> allDurations() {
    std::set<int> durations{40, 50, 180, 480, 2880};
    for (const DurationSet& set : durationSets()) {
        for (const double duration : set.durations_min) {
            durations.insert(static_cast<int>(duration));
        }
    }
    return {durations.begin(), durations.end()};
}

std::string whole(double value) {
    return numbers::general(static_cast<int>(value));
}

}  // namespace

SeriesFit::SeriesFit(const MeasuredSeries& series)
    : years_(coverageOf(series)), interval_min_(series.interval_min) {
    years_used_ = static_cast<std::size_t>(std::ranges::count_if(years_, &YearCoverage::counts));
    if (years_used_ < kFewestYears) {
        throw std::invalid_argument("řada má jen " + whole(static_cast<double>(years_used_)) +
                                    " úplných let; nejméně 3 jsou třeba, 10 je vhodných");
    }
    for (Extremes& extremes : extremesOf(series, allDurations())) {
        std::vector<double> maxima;
        for (const YearMaximum& maximum : extremes.annual) {
            maxima.push_back(maximum.depth_mm);
        }
        if (extremes.peaks_mm.size() < 2) {
            throw std::invalid_argument("řada je bez deště");
        }
        DurationFit fit;
        fit.annual = fitGumbel(maxima);
        fit.partial = fitExponential(extremes.peaks_mm, static_cast<double>(years_used_));
        fit.correction = intervalCorrection(extremes.duration_min / series.interval_min);
        fit.extremes = std::move(extremes);
        durations_.push_back(std::move(fit));
    }
}

std::vector<FittedDepth> SeriesFit::depths(double return_period_years) const {
    if (!(return_period_years > 0.0) || return_period_years > kLongestReturnPeriod) {
        throw std::invalid_argument("doba opakování musí být kladná a nejvýše 1000 let");
    }
    const bool annual = return_period_years >= kShortestAnnualPeriod;
    const BoundFactors factors = annual ? boundFactors95(years_used_, return_period_years) : BoundFactors();
    std::vector<FittedDepth> found;
    for (const DurationFit& fit : durations_) {
        FittedDepth depth;
        depth.duration_min = fit.extremes.duration_min;
        if (!annual) {
            depth.depth_mm = fit.partial.quantile(return_period_years) * fit.correction;
            depth.bounds_mm = {depth.depth_mm, depth.depth_mm};
        } else {
            const Bounds bounds = boundsOf(fit.annual, return_period_years, factors);
            depth.depth_mm = fit.annual.quantile(return_period_years) * fit.correction;
            depth.bounds_mm = {bounds.lower * fit.correction, bounds.upper * fit.correction};
        }
        found.push_back(depth);
    }
    return found;
}

RainCurve SeriesFit::curve(double return_period_years) const {
    std::vector<CurvePoint> points;
    for (const FittedDepth& depth : depths(return_period_years)) {
        points.push_back({depth.duration_min, intensityOfDepth(depth.depth_mm, depth.duration_min)});
    }
    return RainCurve(std::move(points));
}

std::vector<std::string> SeriesFit::remarks(double return_period_years) const {
    std::vector<std::string> found;
    if (years_used_ < kYearsWanted) {
        found.push_back("Řada má jen " + whole(static_cast<double>(years_used_)) +
                        " úplných let; spolehlivý odhad chce nejméně 10.");
    }
    if (return_period_years > kReach * static_cast<double>(years_used_)) {
        found.emplace_back("Doba opakování přesahuje trojnásobek délky řady.");
    }
    for (const YearCoverage& year : years_) {
        if (!year.counts()) {
            constexpr double kPercent = 100.0;
            found.push_back("Rok " + whole(year.year) + " vynechán: změřeno " +
                            numbers::fixed(kPercent * year.share, 0) + " %.");
        }
    }
    constexpr int kShortestWanted_min = 5;
    if (interval_min_ > kShortestWanted_min) {
        found.push_back("Řada po " + whole(interval_min_) +
                        " minutách neříká nic o deštích kratších než její krok.");
    }
    for (const std::string& remark : curve(return_period_years).remarks()) {
        found.push_back(remark);
    }
    return found;
}

}  // namespace mero::rain
