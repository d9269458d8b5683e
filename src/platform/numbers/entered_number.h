// SPDX-License-Identifier: MIT
/// Numbers as people write and copy them: decimal comma, grouped digits, a unit behind the number.
/// The text is cleaned, not converted: what comes out is read by the functions of number_text.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace mero::numbers {

/// Why a text is not taken as a number.
enum class NotTaken : std::uint8_t {
    Empty,           ///< nothing but blanks
    NoNumber,        ///< letters, several signs, half an exponent
    SeveralNumbers,  ///< lines, cells of a table, digits that blanks do not group by three
    TwoSeparators,   ///< "1.200,5", "1,200.5", "1.200.000": which of them is the decimal one?
    PowerOfTen,      ///< "2.10-5", "2x10-5": a product, or a power of ten?
    OtherUnit,       ///< a unit of the program, but not the field's
    TooLarge,        ///< more than a Single holds
    TooSmall,        ///< not 0, but a Single holds nothing so small
    Negative,        ///< for fields that hold no negative number
    NotWhole,        ///< for fields that hold a count
};

using Entered = std::variant<std::string, NotTaken>;

/// Cleans a text that is entered as a whole, such as one from the clipboard.
///
/// Blanks of any kind around the number and grouping its digits by three, line ends at its end, a plus sign
/// and the field's unit behind it are dropped; a comma becomes a point, and a minus of any kind becomes "-".
/// A single comma is always a decimal comma, as Czech is written: "1,200" gives "1.200". An exponent is
/// written with e or E, or as "×10⁻⁵" or "·10^-5"; it comes out with a small e.
/// @param unit of the field, "" for a pure number; a unit is known in its usual spellings ("m2", "m²")
[[nodiscard]] Entered enteredNumber(std::string_view text, std::string_view unit = {});

/// The number without its exponent: "1.5e-4" gives "0.00015". For fields that read no exponent while it is
/// being typed.
/// @param number as enteredNumber() gives it
[[nodiscard]] std::string withoutExponent(const std::string& number);

/// Is it one of the program's units, in any spelling? "l/(s·ha)" is the same as "l/s.ha".
[[nodiscard]] bool isUnit(std::string_view text);

}  // namespace mero::numbers
