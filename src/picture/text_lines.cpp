// SPDX-License-Identifier: MIT
/// Breaks texts into lines and centres them.
/// A line takes as many words as fit.
#include "picture/text_lines.h"

#include <algorithm>
#include <utility>

namespace mero::picture {
namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Where the first word of the text ends. A number stays together with its unit and its groups of digits.
std::size_t endOfWord(std::string_view text) {
    std::size_t blank = text.find(' ');
    while (blank != std::string_view::npos && blank > 0 && isDigit(text[blank - 1])) {
        blank = text.find(' ', blank + 1);
    }
    return std::min(blank, text.size());
}

}  // namespace

std::vector<std::string> brokenLines(std::string_view text, double width, const TextSizes& sizes,
                                     Emphasis emphasis) {
    std::vector<std::string> lines;
    std::string line;
    while (!text.empty()) {
        const std::size_t end = endOfWord(text);
        const std::string word(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        std::string longer = line;
        longer += line.empty() ? "" : " ";
        longer += word;
        if (sizes.width(longer, emphasis) <= width) {
            line = longer;
            continue;
        }
        if (sizes.width(word, emphasis) > width) {
            return {};
        }
        lines.push_back(std::exchange(line, word));
    }
    if (!line.empty()) {
        lines.push_back(line);
    }
    return lines;
}

PlacedText centredText(std::string text, double centre_x, double top, double left, double right,
                       const TextSizes& sizes, Emphasis emphasis) {
    const double width = sizes.width(text, emphasis);
    const double x = std::max(left, std::min(centre_x - width / 2.0, right - width));
    return {{x, top, x + width, top + sizes.line_height}, std::move(text), emphasis};
}

Drawing onlyText(std::string_view text, const Sheet& sheet, const TextSizes& sizes) {
    Drawing drawing;
    const double margin = sizes.line_height / 2.0;
    const std::vector<std::string> lines = brokenLines(text, sheet.width - 2.0 * margin, sizes);
    const double height = static_cast<double>(lines.size()) * sizes.line_height;
    if (height > sheet.height) {
        return drawing;
    }
    double top = (sheet.height - height) / 2.0;
    for (const std::string& line : lines) {
        drawing.texts.push_back(
            centredText(line, sheet.width / 2.0, top, 0.0, sheet.width, sizes, Emphasis::Quiet));
        top += sizes.line_height;
    }
    return drawing;
}

}  // namespace mero::picture
