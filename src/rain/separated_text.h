// SPDX-License-Identifier: MIT
/// Rows and cells of a text file as people have them: its encoding, its separator, its decimal sign.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mero::rain {

/// The text in UTF-8, with "\n" as line end. Reads UTF-8 and UTF-16 with a byte-order mark, UTF-8 without
/// one, and everything else as windows-1250.
/// @throws std::invalid_argument in Czech for a file that is no text (zero bytes)
[[nodiscard]] std::string decodedText(std::string_view bytes);

using Cells = std::vector<std::string>;

/// A line that holds something, with its number in the file from 1.
struct Line {
    int number = 0;
    std::string_view text;
};

/// Lines without those that are empty or a comment ("#", "//", "%").
[[nodiscard]] std::vector<Line> contentLines(std::string_view text);

/// The cells of a line. A cell in double quotes may hold the separator; two quotes inside stand for one.
/// Blanks around a cell are dropped. The separator ' ' takes any run of blanks.
[[nodiscard]] Cells splitCells(std::string_view line, char separator);

/// What separates cells in a file, and the sign before decimals.
struct Style {
    char separator = ';';
    char decimal = '.';

    bool operator==(const Style&) const = default;
};

/// The number of a cell in that style, none when it is no number.
///
/// Blanks may group digits in threes, except between commas; so may the sign that is not the decimal one, but
/// only before a decimal sign ("1.234,5"): "1,234" alone is never a thousand.
[[nodiscard]] std::optional<double> cellNumber(std::string_view cell, Style style);

/// The style in which most lines have the same number of cells, at least two of them numbers; tab, semicolon,
/// bar, comma, blanks in this order where several fit. None when no line has two numbers.
[[nodiscard]] std::optional<Style> recognisedStyle(const std::vector<Line>& lines);

}  // namespace mero::rain
