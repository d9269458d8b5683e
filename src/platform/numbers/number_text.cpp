// SPDX-License-Identifier: MIT
/// Converts numbers and texts with std::from_chars and std::to_chars, which ignore the locale.
/// One scanner recognises numbers; one digit string is rounded in decimal.
#include "platform/numbers/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <system_error>

#include "platform/numbers/checked.h"
#include "platform/numbers/runtime_error.h"

namespace mero::numbers {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

enum class Grouping { None, SingleBlanks };

/// The leading part of a text that is a number, without sign and grouping, ready for std::from_chars.
struct ScannedNumber {
    bool found{};
    bool negative = false;
    std::string digits;    ///< "12.5e-3"
    std::size_t length{};  ///< number of characters read, with leading blanks
};

std::size_t scanIntegerPart(std::string_view text, std::size_t at, Grouping grouping, std::string& digits) {
    while (at < text.size()) {
        if (isDigit(text[at])) {
            digits += text[at++];
            continue;
        }
        const bool groups = grouping == Grouping::SingleBlanks && text[at] == ' ' && !digits.empty() &&
                            at + 1 < text.size() && isDigit(text[at + 1]);
        if (!groups) {
            break;
        }
        ++at;
    }
    return at;
}

/// Takes an exponent only when it is complete, so that "2e-" leaves the number 2.
std::size_t scanExponent(std::string_view text, std::size_t at, std::string& digits) {
    std::size_t end = at;
    if (end >= text.size() || (text[end] != 'e' && text[end] != 'E')) {
        return at;
    }
    std::string exponent = "e";
    ++end;
    if (end < text.size() && (text[end] == '+' || text[end] == '-')) {
        if (text[end] == '-') {
            exponent += '-';
        }
        ++end;
    }
    const std::size_t first_digit = end;
    while (end < text.size() && isDigit(text[end])) {
        exponent += text[end++];
    }
    if (end == first_digit) {
        return at;
    }
    digits += exponent;
    return end;
}

ScannedNumber scan(std::string_view text, Grouping grouping) {
    ScannedNumber number;
    std::size_t at = 0;
    while (at < text.size() && text[at] == ' ') {
        ++at;
    }
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
        number.negative = text[at] == '-';
        ++at;
    }
    at = scanIntegerPart(text, at, grouping, number.digits);
    if (at < text.size() && text[at] == '.') {
        number.digits += '.';
        at = scanIntegerPart(text, at + 1, Grouping::None, number.digits);
    }
    number.found = std::any_of(number.digits.begin(), number.digits.end(), isDigit);
    number.length = scanExponent(text, at, number.digits);
    return number;
}

/// std::from_chars gives the same error for a value too small for the type and for one too large; only the
/// latter is an overflow here. The power of ten distinguishes them. It may be off by one, because values out
/// of range are dozens of powers away from 1. At least one digit is not 0: zeros are in range with any
/// exponent.
bool isBelowOne(std::string_view digits) {
    const std::size_t exponent_at = std::min(digits.find('e'), digits.size());
    const std::string_view mantissa = digits.substr(0, exponent_at);
    const auto first = static_cast<long>(mantissa.find_first_of("123456789"));
    const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
    // An exponent of more than 9 digits decides alone.
    const std::string_view exponent_text =
        exponent_at < digits.size() ? digits.substr(exponent_at + 1) : std::string_view("0");
    long exponent{};
    const auto result =
        std::from_chars(exponent_text.data(), exponent_text.data() + exponent_text.size(), exponent);
    if (result.ec == std::errc::result_out_of_range) {
        return exponent_text.starts_with('-');
    }
    return exponent < first - point;  // their sum may be too large for the type
}

template <typename Real>
Real convert(const ScannedNumber& number) {
    Real value{};  // stays 0 when the number is too small for the type
    const char* begin = number.digits.data();
    const auto result = std::from_chars(begin, begin + number.digits.size(), value);
    if (result.ec == std::errc::result_out_of_range && !isBelowOne(number.digits)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number.negative && value != 0 ? -value : value;
}

template <typename Real>
Real strict(std::string_view text) {
    const ScannedNumber number = scan(text, Grouping::SingleBlanks);
    if (!number.found || text.find_first_not_of(' ', number.length) != std::string_view::npos) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    return convert<Real>(number);
}

/// The shortest decimal digits of a value: d.ddd times ten to the power of `exponent`.
struct Decimal {
    bool negative = false;
    std::string digits = "0";
    int exponent = 0;

    [[nodiscard]] bool isZero() const { return digits.find_first_not_of('0') == std::string::npos; }

    /// Keeps `count` digits (0 or less keeps none), rounding half away from zero.
    void roundToDigits(int count) {
        if (count >= static_cast<int>(digits.size())) {
            return;
        }
        if (count < 0) {
            *this = Decimal{};
            return;
        }
        const bool up = digits[static_cast<std::size_t>(count)] >= '5';
        digits.resize(static_cast<std::size_t>(count));
        if (up) {
            increment();
        }
    }

  private:
    void increment() {
        for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
            if (*digit != '9') {
                ++*digit;
                return;
            }
            *digit = '0';
        }
        digits.insert(digits.begin(), '1');
        ++exponent;
    }
};

template <typename Real>
Decimal shortestDecimal(Real value) {
    // Nothing that is stored or shown is inf or nan: a caller that passes one lacks a check.
    if (!std::isfinite(value)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    std::array<char, 40> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
    Decimal decimal;
    decimal.negative = text.starts_with('-');
    const std::size_t exponent_at = text.find('e');
    decimal.digits.clear();
    std::copy_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(exponent_at),
                 std::back_inserter(decimal.digits), isDigit);
    std::string_view exponent_text = text.substr(exponent_at + 1);
    if (exponent_text.starts_with('+')) {
        exponent_text.remove_prefix(1);
    }
    std::from_chars(exponent_text.data(), exponent_text.data() + exponent_text.size(), decimal.exponent);
    return decimal;
}

std::string exponentText(int exponent) {
    const std::string digits = general(std::abs(exponent));
    return std::string(exponent < 0 ? "E-" : "E+") + (digits.size() < 2 ? "0" : "") + digits;
}

/// Integer digits and fraction digits of a decimal, filled with zeros on both sides of the point.
struct PlainDigits {
    std::string integer;
    std::string fraction;
};

PlainDigits plainDigits(const Decimal& decimal) {
    if (decimal.exponent < 0) {
        return {"0", std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') + decimal.digits};
    }
    const auto integer_count = static_cast<std::size_t>(decimal.exponent) + 1;
    std::string integer = decimal.digits.substr(0, integer_count);
    integer.resize(integer_count, '0');
    return {integer,
            decimal.digits.size() > integer_count ? decimal.digits.substr(integer_count) : std::string()};
}

std::string grouped(const std::string& integer) {
    std::string text;
    for (std::size_t i = 0; i < integer.size(); ++i) {
        if (i > 0 && (integer.size() - i) % 3 == 0) {
            text += ' ';
        }
        text += integer[i];
    }
    return text;
}

std::string fixedText(Decimal decimal, int decimals) {
    decimal.roundToDigits(decimal.exponent + 1 + decimals);
    const bool negative = decimal.negative && !decimal.isZero();
    PlainDigits plain = plainDigits(decimal);
    plain.fraction.resize(static_cast<std::size_t>(decimals), '0');
    std::string text = negative ? "-" : "";
    text += grouped(plain.integer);
    if (decimals > 0) {
        text += '.' + plain.fraction;
    }
    return text;
}

std::string scientificText(Decimal decimal, int decimals) {
    decimal.roundToDigits(decimals + 1);
    std::string mantissa = decimal.digits;
    mantissa.resize(static_cast<std::size_t>(decimals) + 1, '0');
    if (decimals > 0) {
        mantissa.insert(1, ".");
    }
    const bool negative = decimal.negative && !decimal.isZero();
    return (negative ? "-" : "") + mantissa + exponentText(decimal.isZero() ? 0 : decimal.exponent);
}

std::string generalText(const Decimal& decimal) {
    if (decimal.isZero()) {
        return "0";
    }
    constexpr int kSmallestPlainExponent = -5;
    constexpr int kLargestPlainExponent = 7;
    std::string text = decimal.negative ? "-" : "";
    const bool plain = decimal.exponent >= kSmallestPlainExponent &&
                       (decimal.exponent < kLargestPlainExponent ||
                        (decimal.exponent == kLargestPlainExponent && decimal.digits == "1"));
    if (plain) {
        const PlainDigits digits = plainDigits(decimal);
        return text + digits.integer + (digits.fraction.empty() ? "" : "." + digits.fraction);
    }
    text += decimal.digits[0];
    if (decimal.digits.size() > 1) {
        text += '.' + decimal.digits.substr(1);
    }
    return text + exponentText(decimal.exponent);
}

}  // namespace

float strictSingle(std::string_view text) {
    return strict<float>(text);
}

double strictDouble(std::string_view text) {
    return strict<double>(text);
}

std::int16_t strictInteger(std::string_view text) {
    return toInteger(strict<double>(text));
}

double leadingNumber(std::string_view text) {
    const ScannedNumber number = scan(text, Grouping::None);
    return number.found ? convert<double>(number) : 0.0;
}

std::string fixed(float value, int decimals) {
    return fixedText(shortestDecimal(value), decimals);
}

std::string fixed(double value, int decimals) {
    return fixedText(shortestDecimal(value), decimals);
}

std::string scientific(float value, int decimals) {
    return scientificText(shortestDecimal(value), decimals);
}

std::string scientific(double value, int decimals) {
    return scientificText(shortestDecimal(value), decimals);
}

std::string general(float value) {
    return generalText(shortestDecimal(value));
}

std::string general(double value) {
    return generalText(shortestDecimal(value));
}

std::string general(int value) {
    std::array<char, 16> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), result.ptr};
}

}  // namespace mero::numbers
