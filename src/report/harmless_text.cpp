// SPDX-License-Identifier: MIT
/// Escapes text.
#include "report/harmless_text.h"

#include <charconv>
#include <system_error>

namespace mero::report {
namespace {

constexpr char kFirstPrintable = 0x20;

bool isControl(char c) {
    return c >= 0 && c < kFirstPrintable && c != '\r' && c != '\n' && c != '\t';
}

/// Latin and Greek letters, punctuation, arrows and mathematical signs.
bool isUsual(unsigned letter) {
    constexpr unsigned kLatinEnd = 0x24F;
    constexpr unsigned kGreekBegin = 0x370;
    constexpr unsigned kGreekEnd = 0x3FF;
    constexpr unsigned kSignsBegin = 0x2010;
    constexpr unsigned kSignsEnd = 0x22FF;
    constexpr unsigned kDirectionBegin = 0x2028;
    constexpr unsigned kDirectionEnd = 0x206F;
    const bool steers = letter >= kDirectionBegin && letter <= kDirectionEnd && letter != 0x2030;
    return (letter >= static_cast<unsigned>(kFirstPrintable) && letter <= kLatinEnd) ||
           (letter >= kGreekBegin && letter <= kGreekEnd) ||
           (letter >= kSignsBegin && letter <= kSignsEnd && !steers);
}

/// True when `text`, which begins with "&#", is an entity of a usual letter.
bool isUsualEntity(std::string_view text) {
    constexpr std::size_t kLongest = 10;
    constexpr int kHexadecimal = 16;
    constexpr int kDecimal = 10;
    text = text.substr(2, kLongest);
    const bool hexadecimal = text.starts_with('x') || text.starts_with('X');
    text.remove_prefix(hexadecimal ? 1 : 0);
    unsigned letter = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, letter, hexadecimal ? kHexadecimal : kDecimal);
    return read.ec == std::errc() && read.ptr != end && *read.ptr == ';' && isUsual(letter);
}

}  // namespace

void addHarmlessText(std::string& html, std::string_view text, PageUse use) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '<') {
            html += "&lt;";
        } else if (use == PageUse::View && isControl(c)) {
            html += ' ';
        } else if (use == PageUse::View && text.substr(i, 2) == "&#" && !isUsualEntity(text.substr(i))) {
            html += "&amp;";
        } else {
            html += c;
        }
    }
}

std::string_view wholeLetters(std::string_view text, std::size_t most) {
    constexpr unsigned char kKind = 0xC0;
    constexpr unsigned char kContinuation = 0x80;
    if (text.size() <= most) {
        return text;
    }
    while (most > 0 && (static_cast<unsigned char>(text[most]) & kKind) == kContinuation) {
        --most;
    }
    return text.substr(0, most);
}

}  // namespace mero::report
