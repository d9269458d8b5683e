// SPDX-License-Identifier: MIT
/// Converts little-endian bytes to numbers, with one small function per family of types.
#include "data/jet/value.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <string>

#include "data/jet/text.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::data::jet {
namespace {

constexpr int kCurrencyDecimals = 4;
constexpr int kMostDecimals = 28;

std::uint64_t u64(Bytes bytes) {
    const std::uint64_t high = bytes.u32(4);
    return high << 32U | bytes.u32(0);
}

std::optional<double> finite(double value) {
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// Decimal digits of four 32-bit words, the most significant first, without leading zeros.
std::string digitsOf(std::array<std::uint32_t, 4> words) {
    std::string digits;
    while (std::ranges::any_of(words, [](std::uint32_t word) { return word != 0; })) {
        std::uint64_t remainder = 0;
        for (std::uint32_t& word : words) {
            const std::uint64_t dividend = remainder << 32U | word;
            word = static_cast<std::uint32_t>(dividend / 10U);
            remainder = dividend % 10U;
        }
        digits += static_cast<char>('0' + remainder);
    }
    std::ranges::reverse(digits);
    return digits;
}

/// The double nearest to a whole number of 128 bits over a power of ten.
double scaled(std::array<std::uint32_t, 4> words, int scale, bool negative) {
    const std::string text = digitsOf(words) + "e-" + numbers::general(scale);
    const double magnitude = text.front() == 'e' ? 0.0 : numbers::leadingNumber(text);
    return negative ? -magnitude : magnitude;
}

/// A sign byte and four words, the most significant word first, each little-endian.
std::optional<double> decimalOf(Bytes bytes, int scale) {
    if (scale > kMostDecimals) {
        return std::nullopt;
    }
    std::array<std::uint32_t, 4> words{};
    for (std::size_t at = 0; at < words.size(); ++at) {
        words[at] = bytes.u32(1 + 4 * at);
    }
    return scaled(words, scale, bytes.u8(0) != 0);
}

/// A signed number of 64 bits.
double currencyOf(Bytes bytes) {
    const std::uint64_t stored = u64(bytes);
    const bool negative = (stored >> 63U) != 0;
    const std::uint64_t magnitude = negative ? ~stored + 1 : stored;
    return scaled({0, 0, static_cast<std::uint32_t>(magnitude >> 32U), static_cast<std::uint32_t>(magnitude)},
                  kCurrencyDecimals, negative);
}

std::optional<double> textNumber(const std::string& text) {
    try {
        return static_cast<double>(numbers::strictSingle(text));
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

}  // namespace

bool holdsNumbers(ColumnType type) {
    switch (type) {
        case ColumnType::Byte:
        case ColumnType::Integer:
        case ColumnType::LongInteger:
        case ColumnType::Currency:
        case ColumnType::Single:
        case ColumnType::Double:
        case ColumnType::Decimal:
        case ColumnType::Text:
            return true;
        case ColumnType::YesNo:
        case ColumnType::Date:
        case ColumnType::Binary:
        case ColumnType::Ole:
        case ColumnType::Memo:
        case ColumnType::Guid:
            break;
    }
    return false;
}

std::optional<double> numberOf(const Column& column, Bytes value) {
    switch (column.type) {
        case ColumnType::Byte:
            return static_cast<double>(value.u8(0));
        case ColumnType::Integer:
            return static_cast<double>(static_cast<std::int16_t>(value.u16(0)));
        case ColumnType::LongInteger:
            return static_cast<double>(static_cast<std::int32_t>(value.u32(0)));
        case ColumnType::Single:
            return finite(static_cast<double>(std::bit_cast<float>(value.u32(0))));
        case ColumnType::Double:
        case ColumnType::Date:
            return finite(std::bit_cast<double>(u64(value)));
        case ColumnType::Currency:
            return currencyOf(value);
        case ColumnType::Decimal:
            return decimalOf(value, column.scale);
        case ColumnType::Text:
            return textNumber(textValue(value));
        case ColumnType::YesNo:
        case ColumnType::Binary:
        case ColumnType::Ole:
        case ColumnType::Memo:
        case ColumnType::Guid:
            break;
    }
    return std::nullopt;
}

}  // namespace mero::data::jet
