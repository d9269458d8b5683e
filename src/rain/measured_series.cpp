// SPDX-License-Identifier: MIT
/// Reads rows, sorts them, and puts them on a grid of intervals.
#include "rain/measured_series.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"
#include "rain/series_columns.h"

namespace mero::rain {
namespace {

constexpr std::string_view kElement = "SRA10M";
constexpr int kLongestInterval_min = 1440;
/// 200 years of minutes.
constexpr std::int64_t kMostIntervals = 105'000'000;

std::string count(std::int64_t rows) {
    return numbers::general(static_cast<double>(rows));
}

/// Lines for the search of the columns.
constexpr std::size_t kHeadLines = 200;

class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}

    /// The next line that holds something and is no comment.
    bool next(Line& line) {
        while (!rest_.empty()) {
            ++number_;
            const std::size_t end = rest_.find('\n');
            line = {number_, rest_.substr(0, end)};
            rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
            const std::size_t first = line.text.find_first_not_of(" \t");
            if (first != std::string_view::npos && line.text[first] != '#') {
                return true;
            }
        }
        return false;
    }

  private:
    std::string_view rest_;
    int number_ = 0;
};

std::vector<Line> headOf(std::string_view text) {
    std::vector<Line> lines;
    Lines all(text);
    for (Line line; lines.size() < kHeadLines && all.next(line);) {
        lines.push_back(line);
    }
    return lines;
}

[[noreturn]] void fail(const std::string& name, const Line& line, const std::string& reason) {
    throw std::invalid_argument(name + ", řádek " + numbers::general(line.number) + ": " + reason);
}

void addSentence(std::vector<std::string>& sentences, std::int64_t rows, const char* of) {
    if (rows != 0) {
        sentences.push_back(std::string(of) + ": " + count(rows) + ".");
    }
}

}  // namespace

std::vector<std::string> SeriesNotes::sentences() const {
    std::vector<std::string> found;
    addSentence(found, empty, "Řádky bez hodnoty, vzaty jako chybějící");
    addSentence(found, negative, "Záporné hodnoty, vzaty jako chybějící");
    addSentence(found, too_large,
                "Hodnoty nad 200 mm za interval, vzaty jako chybějící; zkontrolujte jednotky");
    addSentence(found, same_twice, "Řádky uvedené dvakrát, vzaty jednou");
    addSentence(found, different_twice, "Okamžiky se dvěma různými hodnotami, vzata první");
    addSentence(found, in_repeated_hour,
                "Z toho v hodině, kterou letní čas opakuje; řada je asi v místním čase");
    addSentence(found, off_grid, "Okamžiky mimo krok řady, vynechány");
    for (const auto& [flag, rows_of] : flags) {
        found.push_back("Příznak „" + flag + "“: " + count(rows_of) + ".");
    }
    if (gaps != 0) {
        constexpr double kMinutesPerHour = 60.0;
        if (missing_intervals > rows) {
            found.emplace_back(
                "Chybí více intervalů, než kolik jich je uvedeno: uvádějí soubory jen intervaly s deštěm?");
        }
        found.push_back("Mezery: " + count(gaps) + ", chybí " + count(missing_intervals) +
                        " intervalů, nejdelší mezera " +
                        numbers::fixed(static_cast<double>(longest_gap_min) / kMinutesPerHour, 1) + " h.");
    }
    if (!has_zone) {
        found.emplace_back("Okamžiky neuvádějí časové pásmo.");
    }
    return found;
}

void SeriesReader::add(std::string_view bytes, const std::string& name) {
    std::string text;
    SeriesColumns columns;
    try {
        text = decodedText(bytes);
        columns = findColumns(headOf(text));
    } catch (const std::invalid_argument& error) {
        throw std::invalid_argument(name + ": " + error.what());
    }
    std::vector<Row> rows;
    SeriesNotes notes = notes_;
    std::vector<std::string_view> cells;
    Lines lines(text);
    Line line;
    for (std::size_t at = 0; lines.next(line); ++at) {
        if (at < columns.first_line) {
            continue;
        }
        splitViews(line.text, columns.style.separator, cells);
        const auto moment = momentOf(cells, columns);
        if (!moment) {
            fail(name, line, "není okamžik");
        }
        if (columns.element && *columns.element < cells.size() && cells[*columns.element] != kElement) {
            fail(name, line, "prvek „" + std::string(cells[*columns.element]) + "“ není SRA10M");
        }
        ++notes.rows;
        notes.has_zone = notes.has_zone && moment->has_zone;
        for (const auto& column : {columns.flag, columns.quality}) {
            if (column && *column < cells.size() && !cells[*column].empty() && cells[*column] != "0") {
                ++notes.flags[std::string(cells[*column])];
            }
        }
        Row row{moment->minute, std::numeric_limits<float>::quiet_NaN()};
        if (columns.depth >= cells.size() || cells[columns.depth].empty()) {
            ++notes.empty;
        } else {
            const auto value = cellNumber(cells[columns.depth], columns.style);
            if (!value) {
                fail(name, line, "„" + std::string(cells[columns.depth]) + "“ není číslo");
            }
            const bool usable = *value >= 0.0 && *value <= kLargestDepth_mm;
            notes.negative += *value < 0.0 ? 1 : 0;
            notes.too_large += *value > kLargestDepth_mm ? 1 : 0;
            row.depth_mm = usable ? static_cast<float>(*value) : row.depth_mm;
        }
        rows.push_back(row);
    }
    ++notes.files;
    notes_ = std::move(notes);
    rows_.insert(rows_.end(), rows.begin(), rows.end());
}

void SeriesReader::dropDuplicates() {
    std::ranges::stable_sort(rows_, {}, &Row::minute);
    std::vector<Row> kept;
    kept.reserve(rows_.size());
    for (const Row& row : rows_) {
        if (kept.empty() || kept.back().minute != row.minute) {
            kept.push_back(row);
            continue;
        }
        Row& first = kept.back();
        if (first.depth_mm == row.depth_mm || std::isnan(row.depth_mm)) {
            ++notes_.same_twice;
        } else if (std::isnan(first.depth_mm)) {
            first.depth_mm = row.depth_mm;
            ++notes_.same_twice;
        } else {
            ++notes_.different_twice;
        }
        notes_.in_repeated_hour += !notes_.has_zone && isRepeatedHour(row.minute) ? 1 : 0;
    }
    rows_ = std::move(kept);
}

int SeriesReader::commonInterval() const {
    std::map<Minute, std::int64_t> steps;
    for (std::size_t i = 1; i < rows_.size(); ++i) {
        ++steps[rows_[i].minute - rows_[i - 1].minute];
    }
    const auto most = std::ranges::max_element(steps, {}, [](const auto& step) { return step.second; });
    if (most->first > kLongestInterval_min) {
        throw std::invalid_argument("řada má krok delší než den");
    }
    return most->first;
}

void SeriesReader::refuseGrowingSum() const {
    constexpr std::int64_t kFewestRises = 20;
    constexpr std::int64_t kRisesPerFall = 10;
    std::int64_t rises = 0;
    std::int64_t falls = 0;
    for (std::size_t i = 1; i < rows_.size(); ++i) {
        rises += rows_[i].depth_mm > rows_[i - 1].depth_mm ? 1 : 0;
        falls += rows_[i].depth_mm < rows_[i - 1].depth_mm ? 1 : 0;
    }
    if (rises >= kFewestRises && rises > kRisesPerFall * falls) {
        throw std::invalid_argument("hodnoty jsou zřejmě narůstající součet, ne úhrny za interval");
    }
}

void SeriesReader::countGaps(const MeasuredSeries& series) {
    Minute gap = 0;
    const auto endGap = [this, &gap] {
        notes_.gaps += gap > 0 ? 1 : 0;
        notes_.longest_gap_min = std::max(notes_.longest_gap_min, gap);
        gap = 0;
    };
    for (const float depth : series.depths_mm) {
        if (std::isnan(depth)) {
            ++notes_.missing_intervals;
            gap += series.interval_min;
        } else {
            endGap();
        }
    }
    endGap();
}

MeasuredSeries SeriesReader::finish(Unlisted unlisted) {
    dropDuplicates();
    if (rows_.size() < 2) {
        throw std::invalid_argument("řada má méně než dva okamžiky");
    }
    refuseGrowingSum();
    MeasuredSeries series{rows_.front().minute, commonInterval(), {}};
    const std::int64_t intervals =
        (static_cast<std::int64_t>(rows_.back().minute) - series.begin) / series.interval_min + 1;
    if (intervals > kMostIntervals) {
        throw std::invalid_argument("řada je delší než 200 let minut");
    }
    series.depths_mm.assign(static_cast<std::size_t>(intervals),
                            unlisted == Unlisted::Dry ? 0.0F : std::numeric_limits<float>::quiet_NaN());
    for (const Row& row : rows_) {
        const Minute since = row.minute - series.begin;
        if (since % series.interval_min != 0) {
            ++notes_.off_grid;
        } else {
            series.depths_mm[static_cast<std::size_t>(since / series.interval_min)] = row.depth_mm;
        }
    }
    countGaps(series);
    return series;
}

}  // namespace mero::rain
