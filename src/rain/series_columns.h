// SPDX-License-Identifier: MIT
/// Where the moments and the depths of a file of measured rain stand.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rain/moment.h"
#include "rain/separated_text.h"

namespace mero::rain {

struct SeriesColumns {
    Style style;
    std::size_t moment = 0;
    bool time_in_next_column = false;
    std::size_t depth = 0;
    std::optional<std::size_t> flag;
    std::optional<std::size_t> quality;
    std::optional<std::size_t> element;
    std::size_t first_line = 0;  ///< of the data, among the lines
    std::size_t width = 0;       ///< cells of a line
};

/// @param lines the first lines of the file
/// @throws std::invalid_argument in Czech, without the file's name
[[nodiscard]] SeriesColumns findColumns(const std::vector<Line>& lines);

/// The cells of a line without quotes in them, as views. For files of a million lines.
void splitViews(std::string_view line, char separator, std::vector<std::string_view>& cells);

/// The moment of a line's cells.
[[nodiscard]] std::optional<Moment> momentOf(const std::vector<std::string_view>& cells,
                                             const SeriesColumns& columns);

}  // namespace mero::rain
