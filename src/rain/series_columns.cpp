// SPDX-License-Identifier: MIT
/// Goes by the head where it names the columns, else by what the cells look like.
#include "rain/series_columns.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "rain/unit_words.h"

namespace mero::rain {
namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kAround = " \t\"";
    const std::size_t first = text.find_first_not_of(kAround);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(kAround) - first + 1);
}

bool isNumber(std::string_view cell, Style style) {
    return cellNumber(cell, style).has_value();
}

/// The columns of a data line in that style, without what only a head tells.
std::optional<SeriesColumns> columnsOf(const Line& line, Style style) {
    std::vector<std::string_view> cells;
    splitViews(line.text, style.separator, cells);
    SeriesColumns columns;
    columns.style = style;
    columns.width = cells.size();
    for (columns.moment = 0; columns.moment < cells.size(); ++columns.moment) {
        for (const bool time_in_next : {false, true}) {
            columns.time_in_next_column = time_in_next;
            if (momentOf(cells, columns)) {
                return columns;
            }
        }
    }
    return std::nullopt;
}

/// The only column of numbers beside the moment.
std::size_t onlyNumber(const std::vector<std::string_view>& cells, const SeriesColumns& columns) {
    std::optional<std::size_t> found;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        const bool is_moment =
            at == columns.moment || (columns.time_in_next_column && at == columns.moment + 1);
        if (is_moment || !isNumber(cells[at], columns.style)) {
            continue;
        }
        if (found) {
            throw std::invalid_argument("více sloupců s čísly: záhlaví musí říci, který je úhrn v mm");
        }
        found = at;
    }
    if (!found) {
        throw std::invalid_argument("vedle okamžiku není sloupec s čísly");
    }
    return *found;
}

std::optional<std::size_t> columnCalled(const std::vector<std::string_view>& head, std::string_view name) {
    const auto found = std::ranges::find(head, name);
    return found == head.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - head.begin()));
}

/// The column whose head names millimetres. @throws std::invalid_argument when a head names another unit
std::optional<std::size_t> columnInMillimetres(const std::vector<std::string_view>& head) {
    std::optional<std::size_t> found;
    for (std::size_t at = 0; at < head.size(); ++at) {
        const auto unit = valueUnitIn(head[at]);
        if (!unit) {
            continue;
        }
        if (*unit != ValueUnit::Depth) {
            throw std::invalid_argument("řada má být v mm za interval, ne v intenzitách");
        }
        if (found) {
            throw std::invalid_argument("více sloupců v mm");
        }
        found = at;
    }
    return found;
}

void readHead(const Line& line, const std::vector<std::string_view>& first_row, SeriesColumns& columns) {
    std::vector<std::string_view> head;
    splitViews(line.text, columns.style.separator, head);
    columns.flag = columnCalled(head, "FLAG");
    columns.quality = columnCalled(head, "QUALITY");
    columns.element = columnCalled(head, "ELEMENT");
    if (const auto value = columnCalled(head, "VALUE")) {
        columns.depth = *value;
    } else if (const auto depth = columnInMillimetres(head)) {
        columns.depth = *depth;
    } else {
        columns.depth = onlyNumber(first_row, columns);
    }
    if (columns.depth >= first_row.size()) {
        throw std::invalid_argument("záhlaví má více sloupců než data");
    }
}

}  // namespace

void splitViews(std::string_view line, char separator, std::vector<std::string_view>& cells) {
    cells.clear();
    while (true) {
        const std::size_t end = separator == ' ' ? line.find_first_of(" \t") : line.find(separator);
        const std::string_view cell = trimmed(line.substr(0, end));
        if (separator != ' ' || !cell.empty()) {
            cells.push_back(cell);
        }
        if (end == std::string_view::npos) {
            return;
        }
        line.remove_prefix(end + 1);
    }
}

std::optional<Moment> momentOf(const std::vector<std::string_view>& cells, const SeriesColumns& columns) {
    if (columns.moment >= cells.size()) {
        return std::nullopt;
    }
    if (!columns.time_in_next_column) {
        return readMoment(cells[columns.moment]);
    }
    if (columns.moment + 1 >= cells.size()) {
        return std::nullopt;
    }
    std::string both(cells[columns.moment]);
    both += ' ';
    both += cells[columns.moment + 1];
    return readMoment(both);
}

SeriesColumns findColumns(const std::vector<Line>& lines) {
    constexpr std::array kSeparators{'\t', ';', '|', ',', ' '};
    for (std::size_t at = 0; at < lines.size(); ++at) {
        for (const char separator : kSeparators) {
            const bool comma = lines[at].text.find(',') != std::string_view::npos;
            const Style style{separator, comma && separator != ',' ? ',' : '.'};
            auto columns = columnsOf(lines[at], style);
            if (!columns || columns->width < 2) {
                continue;
            }
            columns->first_line = at;
            // Whole numbers in the first row say nothing about the decimal sign.
            const bool later_comma =
                separator != ',' &&
                std::any_of(lines.begin() + static_cast<std::ptrdiff_t>(at), lines.end(),
                            [](const Line& line) { return line.text.find(',') != std::string_view::npos; });
            columns->style.decimal = later_comma ? ',' : '.';
            std::vector<std::string_view> cells;
            splitViews(lines[at].text, separator, cells);
            if (at == 0) {
                columns->depth = onlyNumber(cells, *columns);
            } else {
                readHead(lines[at - 1], cells, *columns);
            }
            return *columns;
        }
    }
    throw std::invalid_argument("nenalezen sloupec s datem a časem");
}

}  // namespace mero::rain
