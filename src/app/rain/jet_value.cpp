// SPDX-License-Identifier: MIT
/// Converts little-endian bytes to numbers, with one small function per family of types.
/// A text is a number when the program's fields accept it as one.
#include "app/rain/jet_value.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <string>

#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::rain {
namespace {

constexpr double kCurrencyUnits = 10000.0;
constexpr int kMostDecimals = 28;

std::uint64_t unsignedOf(std::span<const std::uint8_t> bytes) {
    std::uint64_t value = 0;
    for (std::size_t at = bytes.size(); at-- > 0;) {
        value = value << 8U | bytes[at];
    }
    return value;
}

std::optional<double> finite(double value) {
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// Decimal digits of four 32-bit words, the most significant first, without leading zeros.
std::string digitsOf(std::array<std::uint32_t, 4> words) {
    std::string digits;
    while (std::any_of(words.begin(), words.end(), [](std::uint32_t word) { return word != 0; })) {
        std::uint64_t remainder = 0;
        for (std::uint32_t& word : words) {
            const std::uint64_t dividend = remainder << 32U | word;
            word = static_cast<std::uint32_t>(dividend / 10U);
            remainder = dividend % 10U;
        }
        digits += static_cast<char>('0' + remainder);
    }
    std::reverse(digits.begin(), digits.end());
    return digits;
}

/// A sign byte and four words, the most significant word first, each little-endian.
std::optional<double> decimalOf(std::span<const std::uint8_t> bytes, int scale) {
    if (scale < 0 || scale > kMostDecimals) {
        return std::nullopt;
    }
    std::array<std::uint32_t, 4> words{};
    for (std::size_t at = 0; at < words.size(); ++at) {
        words[at] = static_cast<std::uint32_t>(unsignedOf(bytes.subspan(1 + 4 * at, 4)));
    }
    const std::string text = digitsOf(words) + "e-" + numbers::general(scale);
    const double magnitude = text.front() == 'e' ? 0.0 : numbers::leadingNumber(text);
    return bytes[0] == 0 ? magnitude : -magnitude;
}

std::optional<double> textNumber(const std::string& text) {
    try {
        return static_cast<double>(numbers::strictSingle(text));
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::optional<double> narrowTextNumber(std::span<const std::uint8_t> bytes) {
    return textNumber(std::string(bytes.begin(), bytes.end()));
}

std::optional<double> wideTextNumber(std::span<const std::uint8_t> bytes) {
    if (bytes.size() >= 2 && bytes[0] == 0xff && bytes[1] == 0xfe) {
        return narrowTextNumber(bytes.subspan(2));
    }
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        if (bytes[at + 1] != 0) {  // not a digit, sign or point
            return std::nullopt;
        }
        text += static_cast<char>(bytes[at]);
    }
    return textNumber(text);
}

}  // namespace

std::size_t storedSize(FieldType type) {
    switch (type) {
        case FieldType::Byte:
            return 1;
        case FieldType::Integer:
            return 2;
        case FieldType::LongInteger:
        case FieldType::Single:
            return 4;
        case FieldType::Double:
        case FieldType::Currency:
            return 8;
        case FieldType::Decimal:
            return 17;
        case FieldType::NarrowText:
        case FieldType::WideText:
        case FieldType::Other:
            break;
    }
    return 0;
}

std::optional<double> numberOf(FieldType type, std::span<const std::uint8_t> bytes, int scale) {
    const std::size_t size = storedSize(type);
    if (size != 0 && bytes.size() != size) {
        return std::nullopt;
    }
    switch (type) {
        case FieldType::Byte:
            return static_cast<double>(bytes[0]);
        case FieldType::Integer:
            return static_cast<double>(static_cast<std::int16_t>(unsignedOf(bytes)));
        case FieldType::LongInteger:
            return static_cast<double>(static_cast<std::int32_t>(unsignedOf(bytes)));
        case FieldType::Single:
            return finite(
                static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(unsignedOf(bytes)))));
        case FieldType::Double:
            return finite(std::bit_cast<double>(unsignedOf(bytes)));
        case FieldType::Currency:
            return static_cast<double>(static_cast<std::int64_t>(unsignedOf(bytes))) / kCurrencyUnits;
        case FieldType::Decimal:
            return decimalOf(bytes, scale);
        case FieldType::NarrowText:
            return narrowTextNumber(bytes);
        case FieldType::WideText:
            return wideTextNumber(bytes);
        case FieldType::Other:
            break;
    }
    return std::nullopt;
}

}  // namespace mero::rain
