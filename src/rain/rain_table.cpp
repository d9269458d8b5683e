// SPDX-License-Identifier: MIT
/// Finds the numbers in the cells, turns the table so that durations go down, and looks for its units.
#include "rain/rain_table.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/numbers/number_text.h"
#include "rain/unit_words.h"

namespace mero::rain {
namespace {

constexpr double kMinutesPerHour = 60.0;
constexpr std::size_t kMostRows = 1000;
constexpr std::size_t kMostColumns = 100;

struct Row {
    int line = 0;
    Cells cells;
};
using Rows = std::vector<Row>;

std::string lineName(int line) {
    return "řádek " + numbers::general(line);
}

std::optional<double> durationIn(const std::string& cell, Style style) {
    const auto plain = cellNumber(cell, style);
    return plain ? plain : durationWithUnit(cell, style);
}

bool hasDigit(const std::string& cell) {
    return cell.find_first_of("0123456789") != std::string::npos;
}

/// A duration with numbers beside it, or with values that are missing.
bool isDataRow(const Row& row, Style style) {
    if (row.cells.size() < 2 || !durationIn(row.cells.front(), style)) {
        return false;
    }
    const auto isMissing = [](const std::string& cell) { return cell.empty() || cell == "-"; };
    return std::any_of(row.cells.begin() + 1, row.cells.end(), hasDigit) ||
           std::all_of(row.cells.begin() + 1, row.cells.end(), isMissing);
}

Rows transposed(const Rows& rows) {
    std::size_t width = 0;
    for (const Row& row : rows) {
        width = std::max(width, row.cells.size());
    }
    Rows turned(width);
    for (std::size_t column = 0; column < width; ++column) {
        turned[column].line = rows.empty() ? 0 : rows.front().line;
        for (const Row& row : rows) {
            turned[column].cells.push_back(column < row.cells.size() ? row.cells[column] : std::string());
        }
    }
    return turned;
}

/// The numbers of cells from `first` on; empty when one of them is none.
std::vector<double> numbersFrom(const Cells& cells, std::size_t first, Style style) {
    std::vector<double> found;
    for (std::size_t at = first; at < cells.size(); ++at) {
        const auto number = durationIn(cells[at], style);
        if (!number) {
            return {};
        }
        found.push_back(*number);
    }
    return found;
}

bool rises(const std::vector<double>& values) {
    return values.size() > 1 &&
           std::ranges::adjacent_find(values, std::ranges::greater_equal()) == values.end();
}

bool falls(const std::vector<double>& values) {
    return values.size() > 1 && std::ranges::adjacent_find(values, std::ranges::less_equal()) == values.end();
}

/// Do the durations go across? Either the first column holds no number at all, or the head is a row of rising
/// numbers along which the values fall, as intensities do with the duration.
bool goesAcross(const Rows& rows, Style style) {
    const auto first_data =
        std::ranges::find_if(rows, [style](const Row& row) { return isDataRow(row, style); });
    if (first_data == rows.end()) {
        return true;
    }
    if (first_data == rows.begin()) {
        const std::vector<double> durations = numbersFrom(first_data->cells, 0, style);
        constexpr std::size_t kPairOfRows = 2;
        return rows.size() == kPairOfRows && durations.size() > 2 && rises(durations);
    }
    const std::vector<double> head = numbersFrom(std::prev(first_data)->cells, 1, style);
    if (!rises(head)) {
        return false;
    }
    std::vector<double> first_column;
    for (auto row = first_data; row != rows.end() && isDataRow(*row, style); ++row) {
        if (!falls(numbersFrom(row->cells, 1, style))) {
            return false;
        }
        first_column.push_back(*durationIn(row->cells.front(), style));
    }
    return head.back() > *std::ranges::max_element(first_column);
}

/// The head's words of each column; a line with fewer cells than the table speaks of all columns.
Cells headWords(const Rows& head, std::size_t width) {
    Cells words(width);
    for (const Row& row : head) {
        for (std::size_t column = 0; column < width; ++column) {
            if (row.cells.size() == width) {
                words[column] += row.cells[column] + " ";
            } else {
                for (const std::string& cell : row.cells) {
                    words[column] += cell + " ";
                }
            }
        }
    }
    return words;
}

void trim(std::string& text) {
    while (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
}

class TableReader {
  public:
    explicit TableReader(Style style) { table_.style = style; }

    RainTable read(const Rows& rows) {
        const auto begin = std::ranges::find_if(rows, [this](const Row& row) { return isData(row); });
        auto end = begin;
        while (end != rows.end() && isData(*end)) {
            ++end;
        }
        if (begin == end) {
            throw std::invalid_argument("nenalezeny sloupce s dobou trvání a hodnotami");
        }
        readHead(Rows(rows.begin(), begin), begin->cells.size());
        for (auto row = begin; row != end; ++row) {
            readRow(*row);
        }
        readTail(Rows(end, rows.end()));
        dropEmptyColumns();
        guessUnits();
        return std::move(table_);
    }

  private:
    bool isData(const Row& row) const { return isDataRow(row, table_.style); }

    void readHead(const Rows& head, std::size_t width) {
        for (const Row& row : head) {
            if (table_.style.separator == ',' && row.cells.size() < width && row.cells.size() > 1) {
                throw std::invalid_argument(
                    lineName(row.line) + ": záhlaví má méně sloupců než data; čárka asi odděluje i desetiny");
            }
        }
        Cells words = headWords(head, width);
        if (const auto unit = durationUnitIn(words.front())) {
            table_.duration_unit = {*unit, false};
        }
        for (std::size_t column = 1; column < width; ++column) {
            if (const auto unit = valueUnitIn(words[column])) {
                if (table_.value_unit && table_.value_unit->unit != *unit) {
                    throw std::invalid_argument("sloupce mají různé jednotky");
                }
                table_.value_unit = {*unit, false};
            }
            trim(words[column]);
            table_.columns.push_back({words[column].empty()
                                          ? "sloupec " + numbers::general(static_cast<int>(column + 1))
                                          : words[column],
                                      {}});
        }
        if (!table_.value_unit) {
            if (const auto unit = valueUnitIn(words.front())) {
                table_.value_unit = {*unit, false};
            }
        }
    }

    void readRow(const Row& row) {
        if (row.cells.size() != table_.columns.size() + 1) {
            throw std::invalid_argument(lineName(row.line) +
                                        ": jiný počet sloupců než v prvním řádku hodnot");
        }
        const std::string& first = row.cells.front();
        const auto plain = cellNumber(first, table_.style);
        if (!plain) {
            ++with_unit_;
            table_.duration_unit = {DurationUnit::Minutes, false};
        }
        table_.durations.push_back(plain ? *plain : *durationWithUnit(first, table_.style));
        if (with_unit_ != 0 && with_unit_ != table_.durations.size()) {
            throw std::invalid_argument(lineName(row.line) + ": jednotka je jen u některých dob trvání");
        }
        for (std::size_t column = 0; column < table_.columns.size(); ++column) {
            const std::string& cell = row.cells[column + 1];
            const auto number = cellNumber(cell, table_.style);
            if (!number && hasDigit(cell)) {
                throw std::invalid_argument(lineName(row.line) + ": „" + cell + "“ není číslo");
            }
            table_.columns[column].values.push_back(number);
        }
    }

    void readTail(const Rows& tail) {
        for (const Row& row : tail) {
            if (isData(row)) {
                throw std::invalid_argument(lineName(row.line) + ": hodnoty pokračují za řádkem bez hodnot");
            }
            table_.remarks.push_back(lineName(row.line) + " vynechán: nejsou v něm hodnoty");
        }
    }

    void dropEmptyColumns() {
        std::erase_if(table_.columns, [](const TableColumn& column) {
            return std::ranges::none_of(column.values, [](const auto& value) { return value.has_value(); });
        });
        if (table_.columns.empty()) {
            throw std::invalid_argument("nenalezeny sloupce s dobou trvání a hodnotami");
        }
    }

    void guessUnits() {
        if (!table_.duration_unit) {
            table_.duration_unit = {guessedDurationUnit(), true};
        }
        std::vector<double> values;
        for (const auto& value : table_.columns.front().values) {
            if (value) {
                values.push_back(*value);
            }
        }
        // Falling values may be l/(s.ha) or mm/h: only a person knows.
        if (!table_.value_unit && rises(values)) {
            table_.value_unit = {ValueUnit::Depth, true};
        }
    }

    DurationUnit guessedDurationUnit() const {
        constexpr double kLongestInHours = 72.0;
        constexpr double kShortestInMinutes = 5.0;
        const auto [shortest, longest] = std::ranges::minmax(table_.durations);
        return longest > kLongestInHours || shortest >= kShortestInMinutes ? DurationUnit::Minutes
                                                                           : DurationUnit::Hours;
    }

    RainTable table_;
    std::size_t with_unit_ = 0;
};

double intensity(double value, double duration_min, ValueUnit unit) {
    switch (unit) {
        case ValueUnit::Intensity:
            return value;
        case ValueUnit::RatePerHour:
            return intensityOfRate(value);
        case ValueUnit::RatePerMinute:
            return intensityOfRate(value * kMinutesPerHour);
        case ValueUnit::Depth:
            return intensityOfDepth(value, duration_min);
    }
    return 0.0;
}

}  // namespace

RainTable readRainTable(std::string_view bytes) {
    if (bytes.size() > kLongestTable) {
        throw std::invalid_argument("tabulka je delší než 1 MB");
    }
    const std::string text = decodedText(bytes);
    const std::vector<Line> lines = contentLines(text);
    if (lines.size() > kMostRows) {
        throw std::invalid_argument("tabulka má více než 1000 řádků");
    }
    const auto style = recognisedStyle(lines);
    if (!style) {
        throw std::invalid_argument("nenalezeny sloupce s dobou trvání a hodnotami");
    }
    Rows rows;
    for (const Line& line : lines) {
        Cells cells = splitCells(line.text, style->separator);
        if (cells.size() > kMostColumns) {
            throw std::invalid_argument(lineName(line.number) + ": více než 100 sloupců");
        }
        if (std::ranges::any_of(cells, [](const std::string& cell) { return !cell.empty(); })) {
            rows.push_back({line.number, std::move(cells)});
        }
    }
    return TableReader(*style).read(goesAcross(rows, *style) ? transposed(rows) : rows);
}

RainCurve curveOf(const RainTable& table, std::size_t column, DurationUnit duration_unit,
                  ValueUnit value_unit) {
    const TableColumn& of = table.columns.at(column);
    std::vector<CurvePoint> points;
    for (std::size_t row = 0; row < table.durations.size(); ++row) {
        if (const auto& value = of.values[row]) {
            const double duration =
                table.durations[row] * (duration_unit == DurationUnit::Hours ? kMinutesPerHour : 1.0);
            points.push_back({duration, intensity(*value, duration, value_unit)});
        }
    }
    return RainCurve(std::move(points));
}

std::string implausibility(const RainCurve& curve) {
    constexpr double kLargestDepth_mm = 1000.0;
    constexpr double kLargestIntensity_l_s_ha = 2000.0;
    constexpr double kSmallestDepth_mm = 0.5;
    for (const CurvePoint& point : curve.points()) {
        const double depth = depthOfIntensity(point.intensity_l_s_ha, point.duration_min);
        const bool large = depth > kLargestDepth_mm || point.intensity_l_s_ha > kLargestIntensity_l_s_ha;
        if (large || depth < kSmallestDepth_mm) {
            return "Déšť " + numbers::general(point.duration_min) + " min má " + numbers::fixed(depth, 1) +
                   " mm: to je neobvykle " + (large ? "mnoho" : "málo") + ", zkontrolujte jednotky.";
        }
    }
    return {};
}

}  // namespace mero::rain
