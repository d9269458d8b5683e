// SPDX-License-Identifier: MIT
/// Writes the shortest digits of std::to_chars in the format of general().
/// A test compares the results of both functions.
#include "platform/numbers/append_number.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

namespace mero::numbers {
namespace {

// Powers of ten between which a number is written without an exponent.
constexpr int kSmallestPlainExponent = -5;
constexpr int kLargestPlainExponent = 7;

/// Shortest digits without the point, and the power of ten of the first digit.
struct Digits {
    std::array<char, 16> buffer{};
    std::size_t count = 0;
    int exponent = 0;

    [[nodiscard]] std::string_view all() const { return {buffer.data(), count}; }
};

Digits shortestDigits(float magnitude) {
    std::array<char, 32> text{};
    const char* const end =
        std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific).ptr;
    Digits digits;
    const char* at = text.data();
    for (; *at != 'e'; ++at) {
        if (*at != '.') {
            digits.buffer[digits.count++] = *at;
        }
    }
    ++at;
    const bool negative = *at == '-';
    for (++at; at != end; ++at) {
        digits.exponent = digits.exponent * 10 + (*at - '0');
    }
    digits.exponent = negative ? -digits.exponent : digits.exponent;
    return digits;
}

void appendPlain(std::string& text, const Digits& digits) {
    if (digits.exponent < 0) {
        text += "0.";
        text.append(static_cast<std::size_t>(-digits.exponent - 1), '0');
        text += digits.all();
        return;
    }
    const std::size_t integer_digits = static_cast<std::size_t>(digits.exponent) + 1;
    if (digits.count <= integer_digits) {
        text += digits.all();
        text.append(integer_digits - digits.count, '0');
        return;
    }
    text += digits.all().substr(0, integer_digits);
    text += '.';
    text += digits.all().substr(integer_digits);
}

void appendWithExponent(std::string& text, const Digits& digits) {
    text += digits.buffer[0];
    if (digits.count > 1) {
        text += '.';
        text += digits.all().substr(1);
    }
    const bool below_one = digits.exponent < 0;
    const int magnitude = below_one ? -digits.exponent : digits.exponent;
    text += below_one ? "E-" : "E+";
    text += static_cast<char>('0' + magnitude / 10);
    text += static_cast<char>('0' + magnitude % 10);
}

}  // namespace

void appendGeneral(std::string& text, float value) {
    if (value == 0.0F) {
        text += '0';
        return;
    }
    if (value < 0.0F) {
        text += '-';
        value = -value;
    }
    const Digits digits = shortestDigits(value);
    const bool plain = digits.exponent >= kSmallestPlainExponent &&
                       (digits.exponent < kLargestPlainExponent ||
                        (digits.exponent == kLargestPlainExponent && digits.all() == "1"));
    if (plain) {
        appendPlain(text, digits);
    } else {
        appendWithExponent(text, digits);
    }
}

}  // namespace mero::numbers
