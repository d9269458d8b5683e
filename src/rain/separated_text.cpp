// SPDX-License-Identifier: MIT
/// Tries every separator with every decimal sign and takes what makes most sense of the lines.
#include "rain/separated_text.h"

#include <algorithm>
#include <array>
#include <map>
#include <stdexcept>

#include "platform/numbers/number_text.h"
#include "platform/numbers/ordinary_text.h"
#include "platform/numbers/runtime_error.h"
#include "report/code_page.h"

namespace mero::rain {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// Length of the sequence that the byte begins, 0 for none.
std::size_t sequenceLength(char first) {
    const auto byte = static_cast<unsigned char>(first);
    if (byte < 0x80U) {
        return 1;
    }
    if (byte < 0xC2U || byte > 0xF4U) {
        return 0;
    }
    return byte < 0xE0U ? 2 : byte < 0xF0U ? 3 : 4;
}

bool isUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = sequenceLength(text[at]);
        if (length == 0 || length > text.size() - at ||
            !std::ranges::all_of(text.substr(at + 1, length - 1), isContinuation)) {
            return false;
        }
        at += length;
    }
    return true;
}

void appendUtf8(std::string& text, char32_t code) {
    const auto tail = [&text](char32_t bits) { text += static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (code < 0x80U) {
        text += static_cast<char>(code);
    } else if (code < 0x800U) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        tail(code);
    } else if (code < 0x10000U) {
        text += static_cast<char>(0xE0U | (code >> 12U));
        tail(code >> 6U);
        tail(code);
    } else {
        text += static_cast<char>(0xF0U | (code >> 18U));
        tail(code >> 12U);
        tail(code >> 6U);
        tail(code);
    }
}

std::string fromUtf16(std::string_view bytes, bool big_endian) {
    constexpr char32_t kReplacement = 0xFFFDU;
    std::string text;
    char32_t high = 0;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        const auto unit = static_cast<char32_t>(big_endian ? first * 256U + second : second * 256U + first);
        if (unit >= 0xD800U && unit < 0xDC00U) {
            high = unit;
        } else if (unit >= 0xDC00U && unit < 0xE000U) {
            appendUtf8(text,
                       high == 0 ? kReplacement : 0x10000U + ((high - 0xD800U) << 10U) + (unit - 0xDC00U));
            high = 0;
        } else {
            appendUtf8(text, unit);
        }
    }
    return text;
}

std::string withLineFeeds(std::string_view text) {
    std::string lines;
    lines.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r') {
            lines += text[at];
        } else if (at + 1 == text.size() || text[at + 1] != '\n') {
            lines += '\n';
        }
    }
    return lines;
}

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Drops signs that group the digits before `end` in threes; false when they stand elsewhere.
bool dropGrouping(std::string& digits, char sign) {
    const std::size_t end = std::min(digits.find_first_of(".eE"), digits.size());
    std::string plain;
    std::size_t in_group = 0;
    bool grouped = false;
    for (std::size_t at = 0; at < end; ++at) {
        if (digits[at] != sign) {
            plain += digits[at];
            in_group += isDigit(digits[at]) ? 1U : 0U;
            continue;
        }
        constexpr std::size_t kGroup = 3;
        if (in_group == 0 || in_group > kGroup || (grouped && in_group != kGroup)) {
            return false;
        }
        grouped = true;
        in_group = 0;
    }
    if (grouped && in_group != 3) {
        return false;
    }
    digits = plain + digits.substr(end);
    return digits.find(sign, plain.size()) == std::string::npos;
}

/// "5 min" without its word.
std::string_view withoutWord(std::string_view cell) {
    const std::size_t digit = cell.find_last_of("0123456789");
    const bool has_word = digit != std::string_view::npos &&
                          cell.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ .",
                                                 digit + 1) == std::string_view::npos;
    return has_word ? cell.substr(0, digit + 1) : cell;
}

/// How well lines fall into cells.
struct Fit {
    int fitting = 0;  ///< lines with the most frequent number of cells
    int numeric = 0;  ///< of these, lines of which at least two cells are numbers and all others are text
    int broken = 0;   ///< lines with a cell that looks like a number and is none
};

bool looksNumeric(std::string_view cell) {
    return !cell.empty() && (isDigit(cell.front()) || cell.front() == '-' || cell.front() == '.') &&
           cell.find_first_not_of("0123456789.,-+eE ") == std::string_view::npos;
}

Fit fitOf(const std::vector<Line>& lines, Style style) {
    std::map<std::size_t, Fit> by_width;
    int broken = 0;
    for (const Line& line : lines) {
        const Cells cells = splitCells(line.text, style.separator);
        int numbers = 0;
        bool is_broken = false;
        for (const std::string& cell : cells) {
            if (cellNumber(withoutWord(cell), style)) {
                ++numbers;
            } else {
                is_broken |= looksNumeric(cell);
            }
        }
        broken += is_broken ? 1 : 0;
        Fit& fit = by_width[cells.size()];
        ++fit.fitting;
        fit.numeric += numbers >= 2 && !is_broken ? 1 : 0;
    }
    Fit best;
    for (const auto& [width, fit] : by_width) {
        if (width >= 2 && fit.numeric > best.numeric) {
            best = fit;
        }
    }
    best.broken = broken;
    return best;
}

}  // namespace

std::string decodedText(std::string_view bytes) {
    std::string text;
    if (bytes.starts_with(kUtf16LittleMark)) {
        text = fromUtf16(bytes.substr(kUtf16LittleMark.size()), false);
    } else if (bytes.starts_with(kUtf16BigMark)) {
        text = fromUtf16(bytes.substr(kUtf16BigMark.size()), true);
    } else {
        if (bytes.starts_with(kUtf8Mark)) {
            bytes.remove_prefix(kUtf8Mark.size());
        }
        text = isUtf8(bytes) ? std::string(bytes) : report::fromWindows1250(bytes);
    }
    if (text.find('\0') != std::string::npos) {
        throw std::invalid_argument("soubor není textový");
    }
    return withLineFeeds(text);
}

std::vector<Line> contentLines(std::string_view text) {
    std::vector<Line> lines;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        const std::string_view content = withoutBlanks(line);
        if (!content.empty() && !content.starts_with('#') && !content.starts_with("//") &&
            !content.starts_with('%')) {
            lines.push_back({number, line});
        }
    }
    return lines;
}

Cells splitCells(std::string_view line, char separator) {
    Cells cells;
    std::string cell;
    bool quoted = false;
    bool was_quoted = false;
    const auto finish = [&] {
        if (separator != ' ' || !cell.empty() || was_quoted) {
            cells.emplace_back(was_quoted ? std::string_view(cell) : withoutBlanks(cell));
        }
        cell.clear();
        was_quoted = false;
    };
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char c = line[at];
        if (quoted) {
            if (c != '"') {
                cell += c;
            } else if (at + 1 < line.size() && line[at + 1] == '"') {
                cell += c;
                ++at;
            } else {
                quoted = false;
            }
        } else if (c == '"' && withoutBlanks(cell).empty()) {
            cell.clear();
            quoted = true;
            was_quoted = true;
        } else if (c == separator || (separator == ' ' && c == '\t')) {
            finish();
        } else if (!was_quoted || c != ' ') {
            cell += c;
        }
    }
    finish();
    return cells;
}

std::optional<double> cellNumber(std::string_view cell, Style style) {
    const std::string ordinary = numbers::ordinaryText(cell);
    std::string text(withoutBlanks(ordinary));
    if (style.decimal == ',') {
        std::ranges::transform(text, text.begin(), [](char c) {
            return c == ',' ? '.' : c == '.' ? ',' : c;
        });
    }
    // The decimal sign is a point from here on, the other one a comma.
    const std::size_t comma = text.find(',');
    const bool grouped_by_comma = comma != std::string::npos && text.find('.') != std::string::npos;
    if (comma != std::string::npos && !(grouped_by_comma && dropGrouping(text, ','))) {
        return std::nullopt;
    }
    if (text.find(' ') != std::string::npos && (style.separator == ',' || !dropGrouping(text, ' '))) {
        return std::nullopt;
    }
    try {
        return numbers::strictDouble(text);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::optional<Style> recognisedStyle(const std::vector<Line>& lines) {
    constexpr std::array kSeparators{'\t', ';', '|', ',', ' '};
    std::optional<Style> best;
    Fit best_fit;
    for (const char separator : kSeparators) {
        for (const char decimal : {'.', ','}) {
            if (decimal == separator) {
                continue;
            }
            const Style style{separator, decimal};
            const Fit fit = fitOf(lines, style);
            if (fit.numeric > best_fit.numeric ||
                (fit.numeric == best_fit.numeric && fit.numeric > 0 && fit.broken < best_fit.broken)) {
                best = style;
                best_fit = fit;
            }
        }
    }
    return best;
}

}  // namespace mero::rain
