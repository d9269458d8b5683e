// SPDX-License-Identifier: MIT
/// Cleans entered numbers: first the characters are made ordinary, then the parts are told apart, then each
/// is checked. What could mean two numbers is refused, because a wrong one would not be noticed.
#include "platform/numbers/entered_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

#include "platform/numbers/number_text.h"
#include "platform/numbers/ordinary_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::numbers {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kBlanks = " ";

std::string_view trimmed(std::string_view text, std::string_view blanks) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool take(std::string_view& text, std::string_view beginning) {
    const bool begins = text.starts_with(beginning);
    if (begins) {
        text.remove_prefix(beginning.size());
    }
    return begins;
}

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

/// Sign and digits, empty when there are none.
std::string takeWholeNumber(std::string_view& text) {
    std::string_view rest = text;
    const bool negative = take(rest, "-");
    if (!negative) {
        take(rest, "+");
    }
    const std::size_t length = std::min(rest.find_first_not_of(kDigits), rest.size());
    if (length == 0) {
        return {};
    }
    text = rest.substr(length);
    return (negative ? "-" : "") + std::string(rest.substr(0, length));
}

/// Units that somebody may copy with a number, in their ordinary spelling. The first are the program's.
constexpr std::array<std::string_view, 24> kUnits{
    "m",  "m2", "m3", "mm", "cm2/m", "m/s",  "m3/s", "l/s", "l/s.ha", "min", "h",    "ha",
    "cm", "dm", "km", "l",  "s",     "mm/h", "m/h",  "m/d", "m/den",  "%",   "cm/s", "mm/s"};

constexpr std::array<std::pair<std::string_view, std::string_view>, 9> kSpellings{{{"l/s/ha", "l/s.ha"},
                                                                                   {"l.s-1.ha-1", "l/s.ha"},
                                                                                   {"l.s-1", "l/s"},
                                                                                   {"m.s-1", "m/s"},
                                                                                   {"m3.s-1", "m3/s"},
                                                                                   {"cm2.m-1", "cm2/m"},
                                                                                   {"min.", "min"},
                                                                                   {"hod", "h"},
                                                                                   {"hod.", "h"}}};

/// A unit in one spelling, from an ordinary text.
std::string oneSpelling(std::string_view unit) {
    std::string plain;
    for (const char c : unit) {
        if (c == '*') {
            plain += '.';
        } else if (c == 'L') {
            plain += 'l';
        } else if (std::string_view(" ()^").find(c) == std::string_view::npos) {
            plain += c;
        }
    }
    const auto* const known = std::find_if(kSpellings.begin(), kSpellings.end(),
                                           [&](const auto& spelling) { return spelling.first == plain; });
    return known == kSpellings.end() ? plain : std::string(known->second);
}

bool isKnownUnit(const std::string& spelled) {
    return std::find(kUnits.begin(), kUnits.end(), spelled) != kUnits.end();
}

/// A slope is written "1 : n"; its field holds the n.
constexpr std::string_view kSlope = "1:n";

void skipSlope(std::string_view& text) {
    std::string_view rest = text;
    if (take(rest, "1")) {
        skipBlanks(rest);
        if (take(rest, ":")) {
            skipBlanks(rest);
            text = rest;
        }
    }
}

/// Digits with single blanks that group them by three, without these blanks.
std::optional<std::string> ungrouped(std::string_view integer) {
    constexpr std::size_t kGroup = 3;
    std::string digits;
    for (bool first = true;; first = false) {
        const std::size_t length = std::min(integer.find(' '), integer.size());
        const bool last = length == integer.size();
        const bool fits = first ? length > 0 && (last || length <= kGroup) : length == kGroup;
        if (!fits) {
            return std::nullopt;
        }
        digits += integer.substr(0, length);
        if (last) {
            return digits;
        }
        integer.remove_prefix(length + 1);
    }
}

/// Digits, separators and blanks before an exponent or a unit.
Entered mantissa(std::string_view text) {
    const std::string_view separators = ".,";
    if (text.find_first_of(kDigits) == std::string_view::npos) {
        return NotTaken::NoNumber;
    }
    const std::size_t separator = text.find_first_of(separators);
    if (separator == std::string_view::npos) {
        const auto digits = ungrouped(text);
        return digits ? Entered(*digits) : NotTaken::SeveralNumbers;
    }
    const std::string_view integer = text.substr(0, separator);
    const std::string_view fraction = text.substr(separator + 1);
    if (fraction.find_first_of(separators) != std::string_view::npos) {
        return NotTaken::TwoSeparators;
    }
    const auto digits = integer.empty() ? std::optional<std::string>("0") : ungrouped(integer);
    if (!digits || fraction.find(' ') != std::string_view::npos) {
        return NotTaken::SeveralNumbers;
    }
    return fraction.empty() ? *digits : *digits + '.' + std::string(fraction);
}

/// Number and exponent; what stands behind them is left in `rest`.
struct Scanned {
    Entered mantissa;
    std::string exponent;  ///< empty without one
};

/// "*10^-5", which must say that it is a power: "*10-5" may have lost its superscript, or not.
std::optional<std::string> takePowerOfTen(std::string_view& rest) {
    if (!take(rest, "*") && !take(rest, "x")) {
        return std::nullopt;
    }
    skipBlanks(rest);
    return take(rest, "10") && take(rest, "^") ? takeWholeNumber(rest) : std::string();
}

Scanned scan(std::string_view& rest) {
    const std::size_t length = std::min(rest.find_first_not_of("0123456789., "), rest.size());
    const std::string_view part = trimmed(rest.substr(0, length), kBlanks);
    rest.remove_prefix(length);
    Scanned scanned{mantissa(part), {}};
    if (std::holds_alternative<NotTaken>(scanned.mantissa)) {
        return scanned;
    }
    if (take(rest, "e") || take(rest, "E")) {
        scanned.exponent = takeWholeNumber(rest);
        if (scanned.exponent.empty()) {
            scanned.mantissa = NotTaken::NoNumber;
        }
    } else if (const auto power = takePowerOfTen(rest)) {
        scanned.exponent = *power;
        if (power->empty()) {
            scanned.mantissa = NotTaken::PowerOfTen;
        }
    } else if (part == "10" && take(rest, "^")) {
        scanned = {"1", takeWholeNumber(rest)};
        if (scanned.exponent.empty()) {
            scanned.mantissa = NotTaken::NoNumber;
        }
    } else if (part.ends_with("10") && (rest.starts_with('-') || rest.starts_with('^'))) {
        scanned.mantissa = NotTaken::PowerOfTen;
    }
    return scanned;
}

std::optional<NotTaken> wrongUnit(std::string_view found, std::string_view unit) {
    const std::string spelled = oneSpelling(found);
    if (spelled.empty() || spelled == oneSpelling(ordinaryText(unit))) {
        return std::nullopt;
    }
    return isKnownUnit(spelled) ? NotTaken::OtherUnit : NotTaken::NoNumber;
}

Entered inRange(const std::string& number) {
    try {
        const std::string_view digits = std::string_view(number).substr(0, number.find('e'));
        const bool zero = digits.find_first_of("123456789") == std::string_view::npos;
        if (strictSingle(number) == 0 && !zero) {
            return NotTaken::TooSmall;
        }
        return number;
    } catch (const RuntimeError&) {
        return NotTaken::TooLarge;
    }
}

}  // namespace

Entered enteredNumber(std::string_view text, std::string_view unit) {
    const std::string ordinary = ordinaryText(text);
    std::string_view rest = trimmed(ordinary, " \t\n");
    if (rest.empty()) {
        return NotTaken::Empty;
    }
    if (rest.find_first_of("\t\n") != std::string_view::npos) {
        return NotTaken::SeveralNumbers;
    }
    if (oneSpelling(ordinaryText(unit)) == kSlope) {
        skipSlope(rest);
    }
    const bool negative = take(rest, "-");
    if (!negative) {
        take(rest, "+");
    }
    if (rest.starts_with(' ')) {
        return NotTaken::NoNumber;
    }
    const Scanned scanned = scan(rest);
    const auto* const digits = std::get_if<std::string>(&scanned.mantissa);
    if (digits == nullptr) {
        return scanned.mantissa;
    }
    if (const auto refused = wrongUnit(rest, unit)) {
        return *refused;
    }
    return inRange((negative ? "-" : "") + *digits +
                   (scanned.exponent.empty() ? "" : 'e' + scanned.exponent));
}

std::string withoutExponent(const std::string& number) {
    const std::size_t end = number.find('e');
    if (end == std::string::npos) {
        return number;
    }
    int exponent{};
    std::from_chars(number.data() + end + 1, number.data() + number.size(), exponent);
    const bool negative = number.starts_with('-');
    const std::string mantissa = number.substr(negative ? 1 : 0, end - (negative ? 1 : 0));
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    std::string digits = mantissa.substr(0, point);
    digits += point < mantissa.size() ? mantissa.substr(point + 1) : "";
    if (digits.find_first_not_of('0') == std::string::npos) {
        return "0";
    }
    // A Single has no digits farther from its point than this, beyond those that are written.
    const int farthest = static_cast<int>(digits.size()) + 50;
    const int place = static_cast<int>(point) + std::clamp(exponent, -farthest, farthest);
    if (place <= 0) {
        digits.insert(0, static_cast<std::size_t>(1 - place), '0');
    } else if (static_cast<std::size_t>(place) > digits.size()) {
        digits.resize(static_cast<std::size_t>(place), '0');
    }
    const auto integer_length = static_cast<std::size_t>(std::max(place, 1));
    std::string integer = digits.substr(0, integer_length);
    integer.erase(0, std::min(integer.find_first_not_of('0'), integer.size() - 1));
    const std::string fraction = digits.substr(integer_length);
    return (negative ? "-" : "") + integer + (fraction.empty() ? "" : '.' + fraction);
}

bool isUnit(std::string_view text) {
    return isKnownUnit(oneSpelling(ordinaryText(text)));
}

}  // namespace mero::numbers
