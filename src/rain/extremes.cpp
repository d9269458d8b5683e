// SPDX-License-Identifier: MIT
/// Moves windows over a series by means of running sums.
#include "rain/extremes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace mero::rain {
namespace {

/// Sums and missing intervals up to each interval.
class RunningSums {
  public:
    explicit RunningSums(const MeasuredSeries& series)
        : depths_(series.depths_mm.size() + 1), missing_(series.depths_mm.size() + 1) {
        for (std::size_t i = 0; i < series.depths_mm.size(); ++i) {
            const float depth = series.depths_mm[i];
            const bool is_missing = std::isnan(depth);
            depths_[i + 1] = depths_[i] + (is_missing ? 0.0 : static_cast<double>(depth));
            missing_[i + 1] = missing_[i] + (is_missing ? 1 : 0);
        }
    }

    [[nodiscard]] bool isWhole(std::size_t begin, std::size_t length) const {
        return missing_[begin + length] == missing_[begin];
    }
    [[nodiscard]] double depth(std::size_t begin, std::size_t length) const {
        return depths_[begin + length] - depths_[begin];
    }
    [[nodiscard]] std::int32_t missing(std::size_t begin, std::size_t length) const {
        return missing_[begin + length] - missing_[begin];
    }

  private:
    std::vector<double> depths_;
    std::vector<std::int32_t> missing_;
};

/// The intervals of a year within the series.
struct YearRange {
    YearCoverage coverage;
    std::size_t begin = 0;
    std::size_t end = 0;
};

std::vector<YearRange> yearsOf(const MeasuredSeries& series, const RunningSums& sums) {
    std::vector<YearRange> years;
    const auto position = [&series](Minute minute) {
        const Minute inside = std::clamp(minute, series.begin, series.end());
        // An interval belongs to the year in which it begins.
        return static_cast<std::size_t>((inside - series.begin + series.interval_min - 1) /
                                        series.interval_min);
    };
    if (series.depths_mm.empty()) {
        return years;
    }
    for (int year = yearOf(series.begin); year <= yearOf(series.end() - 1); ++year) {
        const Minute begin = beginOfYear(year);
        const Minute end = beginOfYear(year + 1);
        YearRange range{{year, 0.0}, position(begin), position(end)};
        const std::size_t length = range.end - range.begin;
        const double whole = static_cast<double>(end - begin) / series.interval_min;
        range.coverage.share =
            static_cast<double>(length - static_cast<std::size_t>(sums.missing(range.begin, length))) / whole;
        years.push_back(range);
    }
    return years;
}

/// A window by its last interval.
struct Peak {
    std::size_t end = 0;
    double depth_mm = 0.0;
};

/// The highest window of each event. A window ends within its event.
/// @param gap intervals without rain that separate events
std::vector<Peak> peaksOf(const MeasuredSeries& series, const RunningSums& sums, std::size_t length,
                          std::size_t gap) {
    std::vector<Peak> peaks;
    std::size_t last_wet = 0;
    for (std::size_t at = 0; at < series.depths_mm.size(); ++at) {
        if (!(series.depths_mm[at] > 0.0F)) {
            continue;
        }
        if (peaks.empty() || at - last_wet > gap) {
            peaks.push_back({at, 0.0});
        }
        // Between two wet intervals of an event the sum only falls.
        last_wet = at;
        if (at + 1 < length || !sums.isWhole(at + 1 - length, length)) {
            continue;
        }
        const double depth = sums.depth(at + 1 - length, length);
        if (depth > peaks.back().depth_mm) {
            peaks.back() = {at, depth};
        }
    }
    return peaks;
}

bool isInAny(const std::vector<YearRange>& years, const Peak& peak) {
    return std::ranges::any_of(
        years, [&peak](const YearRange& year) { return peak.end >= year.begin && peak.end < year.end; });
}

double highestIn(const RunningSums& sums, const YearRange& year, std::size_t length) {
    double highest = 0.0;
    for (std::size_t at = year.begin; at + length <= year.end; ++at) {
        if (sums.isWhole(at, length)) {
            highest = std::max(highest, sums.depth(at, length));
        }
    }
    return highest;
}

}  // namespace

std::vector<YearCoverage> coverageOf(const MeasuredSeries& series) {
    std::vector<YearCoverage> coverage;
    for (const YearRange& year : yearsOf(series, RunningSums(series))) {
        coverage.push_back(year.coverage);
    }
    return coverage;
}

std::vector<Extremes> extremesOf(const MeasuredSeries& series, std::span<const int> durations_min) {
    const RunningSums sums(series);
    std::vector<YearRange> years = yearsOf(series, sums);
    std::erase_if(years, [](const YearRange& year) { return !year.coverage.counts(); });
    std::vector<Extremes> all;
    for (const int duration : durations_min) {
        if (duration < series.interval_min || duration % series.interval_min != 0) {
            continue;
        }
        const auto length = static_cast<std::size_t>(duration / series.interval_min);
        const auto gap =
            static_cast<std::size_t>(std::max(duration, kEventSeparation_min) / series.interval_min);
        Extremes of;
        of.duration_min = duration;
        for (const YearRange& year : years) {
            of.annual.push_back({year.coverage.year, highestIn(sums, year, length)});
        }
        for (const Peak& peak : peaksOf(series, sums, length, gap)) {
            if (peak.depth_mm > 0.0 && isInAny(years, peak)) {
                of.peaks_mm.push_back(peak.depth_mm);
            }
        }
        std::ranges::sort(of.peaks_mm, std::ranges::greater());
        const auto wanted =
            static_cast<std::size_t>(std::floor(kPeaksPerYear * static_cast<double>(years.size())));
        of.peaks_mm.resize(std::min(of.peaks_mm.size(), wanted));
        all.push_back(std::move(of));
    }
    return all;
}

double intervalCorrection(int intervals) {
    constexpr std::array kFactors{1.14, 1.07, 1.04, 1.03};
    const auto at = static_cast<std::size_t>(intervals) - 1;
    return at < kFactors.size() ? kFactors[at] : 1.0;
}

}  // namespace mero::rain
