// SPDX-License-Identifier: MIT
/// Converts the stored bytes of a field to a number, by the field's type.
/// The library's number texts are not used: they depend on the locale and show Singles as 0.15000001.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace mero::rain {

/// Field types of the database that hold numbers, or texts that may hold one.
enum class FieldType {
    Byte,
    Integer,      ///< 16 bit
    LongInteger,  ///< 32 bit
    Single,
    Double,
    Currency,  ///< 64 bit, in ten-thousandths
    Decimal,   ///< sign and 128 bit, scaled by a power of ten
    NarrowText,
    WideText,  ///< UTF-16, or one byte per character after the mark FF FE
    Other,     ///< dates, pictures, yes/no: not a number
};

/// Size in bytes of a value of the type; 0 when it varies.
[[nodiscard]] std::size_t storedSize(FieldType type);

/// The number; empty when the bytes hold none: not finite, a text that is not a number, another type.
/// @param scale decimals of a Decimal
[[nodiscard]] std::optional<double> numberOf(FieldType type, std::span<const std::uint8_t> bytes, int scale);

}  // namespace mero::rain
