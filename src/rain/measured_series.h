// SPDX-License-Identifier: MIT
/// Measured rain in intervals of one length, put together from files of moments and depths.
/// Whatever is not as it should be is counted and told; nothing is summed or filled in silence.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rain/moment.h"
#include "rain/separated_text.h"

namespace mero::rain {

/// Depths of consecutive intervals; a missing one is a NaN.
struct MeasuredSeries {
    Minute begin = 0;
    int interval_min = 0;
    std::vector<float> depths_mm;

    [[nodiscard]] Minute end() const { return begin + static_cast<Minute>(depths_mm.size()) * interval_min; }
};

/// What reading found, in numbers of rows.
struct SeriesNotes {
    int files = 0;
    std::int64_t rows = 0;
    std::int64_t empty = 0;             ///< rows without a value: missing
    std::int64_t negative = 0;          ///< taken as missing
    std::int64_t too_large = 0;         ///< taken as missing
    std::int64_t same_twice = 0;        ///< a moment twice with one value: taken once
    std::int64_t different_twice = 0;   ///< a moment twice with two values: the first is taken
    std::int64_t in_repeated_hour = 0;  ///< of these, in the hour that summer time repeats
    std::int64_t off_grid = 0;          ///< moments between the intervals: left out
    std::int64_t gaps = 0;              ///< stretches of missing intervals
    std::int64_t missing_intervals = 0;
    Minute longest_gap_min = 0;
    bool has_zone = true;  ///< all moments say their zone
    std::map<std::string, std::int64_t>
        flags;  ///< flags and qualities other than "" and "0", with their rows

    /// Sentences in Czech about what a person should know; empty when all is in order.
    [[nodiscard]] std::vector<std::string> sentences() const;
};

/// No rain gauge catches more in one interval.
inline constexpr float kLargestDepth_mm = 200.0F;

/// What an interval is that no file lists.
enum class Unlisted : std::uint8_t {
    Missing,
    Dry,  ///< the files list only intervals with rain
};

class SeriesReader {
  public:
    /// Adds the rows of a file: the institute's (STATION,ELEMENT,DT,VALUE,FLAG,QUALITY, element SRA10M), or
    /// any with a moment and a depth in millimetres.
    /// @param name of the file, for errors
    /// @throws std::invalid_argument in Czech, with file and line, for a file that cannot be used; what was
    /// added before stays
    void add(std::string_view bytes, const std::string& name);

    /// @throws std::invalid_argument in Czech when there are fewer than two moments, or the values are a sum
    /// that grows
    [[nodiscard]] MeasuredSeries finish(Unlisted unlisted = Unlisted::Missing);

    [[nodiscard]] const SeriesNotes& notes() const { return notes_; }

  private:
    struct Row {
        Minute minute = 0;
        float depth_mm = 0.0F;
    };

    void dropDuplicates();
    [[nodiscard]] int commonInterval() const;
    void refuseGrowingSum() const;
    void countGaps(const MeasuredSeries& series);

    std::vector<Row> rows_;
    SeriesNotes notes_;
};

}  // namespace mero::rain
