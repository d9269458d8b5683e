// SPDX-License-Identifier: MIT
/// Looks for units in texts without blanks, brackets and capitals.
#include "rain/unit_words.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/numbers/ordinary_text.h"

namespace mero::rain {
namespace {

constexpr double kMinutesPerHour = 60.0;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80U;
}

std::string lowerCase(std::string_view text) {
    std::string lower = numbers::ordinaryText(text);
    std::ranges::transform(lower, lower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lower;
}

/// Letters, digits and signs only: "[l / (s . ha)]" gives "l/s.ha", "l.s^-1.ha^-1" gives "l.s-1.ha-1".
std::string packed(std::string_view text) {
    std::string lower = lowerCase(text);
    std::erase_if(lower, [](char c) {
        return c == ' ' || c == '[' || c == ']' || c == '(' || c == ')' || c == '^' || c == '_';
    });
    std::ranges::replace(lower, '*', '.');
    return lower;
}

/// Is the word in the text, with no letter beside it?
bool hasWord(std::string_view text, std::string_view word) {
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        const bool begins = at == 0 || !isLetter(text[at - 1]);
        const std::size_t end = at + word.size();
        if (begins && (end == text.size() || !isLetter(text[end]))) {
            return true;
        }
    }
    return false;
}

template <typename Words>
bool hasAny(std::string_view text, const Words& words) {
    return std::ranges::any_of(words, [text](std::string_view word) { return hasWord(text, word); });
}

constexpr std::array<std::string_view, 6> kMinuteWords{"min",    "minut",   "minuty",
                                                       "minuta", "minutes", "minute"};
constexpr std::array<std::string_view, 8> kHourWords{"h",      "hod",  "hodin", "hodiny",
                                                     "hodina", "hour", "hours", "hr"};

}  // namespace

std::optional<DurationUnit> durationUnitIn(std::string_view head) {
    const std::string text = lowerCase(head);
    if (hasAny(text, kMinuteWords)) {
        return DurationUnit::Minutes;
    }
    if (hasAny(text, kHourWords)) {
        return DurationUnit::Hours;
    }
    return std::nullopt;
}

std::optional<ValueUnit> valueUnitIn(std::string_view head) {
    const std::string text = packed(head);
    const auto names = [&text](std::initializer_list<std::string_view> spellings) {
        return std::ranges::any_of(
            spellings, [&text](std::string_view each) { return text.find(each) != std::string::npos; });
    };
    if (names({"l/s.ha", "l/s/ha", "l/sha", "l.s-1.ha-1", "ls-1ha-1", "l.s-1/ha", "l/s-1.ha-1"})) {
        return ValueUnit::Intensity;
    }
    if (names({"mm/min", "mm.min-1", "mmmin-1"})) {
        return ValueUnit::RatePerMinute;
    }
    if (names({"mm/h", "mm.h-1", "mmh-1", "mm.hod-1"})) {
        return ValueUnit::RatePerHour;
    }
    // Any other rate is none of these.
    if (names({"mm/", "l/", "mm.", "l.s"})) {
        return std::nullopt;
    }
    return hasWord(lowerCase(head), "mm") ? std::optional(ValueUnit::Depth) : std::nullopt;
}

std::optional<double> durationWithUnit(std::string_view cell, Style style) {
    const std::string text = lowerCase(cell);
    const std::size_t digits = text.find_last_of("0123456789");
    if (digits == std::string::npos || digits + 1 == text.size()) {
        return std::nullopt;
    }
    std::string_view word = std::string_view(text).substr(digits + 1);
    while (!word.empty() && !isLetter(word.front())) {
        word.remove_prefix(1);
    }
    while (!word.empty() && !isLetter(word.back())) {
        word.remove_suffix(1);
    }
    const auto number = cellNumber(text.substr(0, digits + 1), style);
    if (!number) {
        return std::nullopt;
    }
    if (std::ranges::find(kMinuteWords, word) != kMinuteWords.end()) {
        return *number;
    }
    if (std::ranges::find(kHourWords, word) != kHourWords.end()) {
        return *number * kMinutesPerHour;
    }
    return std::nullopt;
}

}  // namespace mero::rain
