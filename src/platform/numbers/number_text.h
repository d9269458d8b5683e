// SPDX-License-Identifier: MIT
/// Texts of numbers: every conversion between a text and a number goes through these functions.
/// Point as decimal separator, blank as digit grouping, whatever the machine's locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mero::numbers {

/// Strict reading of a whole text to Single.
///
/// Blanks around the text, a sign, digits (single blanks may group the integer digits), a point, digits, an
/// exponent with e or E. "1." and ".5" are numbers.
/// @throws RuntimeError TypeMismatch when the text is not a number, Overflow when a Single cannot hold it
[[nodiscard]] float strictSingle(std::string_view text);

/// The same grammar and errors for a double.
[[nodiscard]] double strictDouble(std::string_view text);

/// Strict reading to a 16-bit Integer, halves to even ("2.5" gives 2). Same grammar and errors.
[[nodiscard]] std::int16_t strictInteger(std::string_view text);

/// Lenient reading: the longest leading part that is a number in point notation, else 0
/// ("2e-" gives 2, "12abc" gives 12, "x" gives 0). Leading blanks are skipped, there is no grouping.
/// @throws RuntimeError Overflow when that part is larger than a double can hold
[[nodiscard]] double leadingNumber(std::string_view text);

/// Fixed decimals, rounded half away from zero on the shortest decimal digits of the value (2.675 gives
/// "2.68"), a blank between groups of three digits, a leading zero, never "-0.00".
/// @param decimals 0 to 20
/// @throws RuntimeError Overflow when the value is not finite
[[nodiscard]] std::string fixed(float value, int decimals);
[[nodiscard]] std::string fixed(double value, int decimals);

/// Scientific pattern "0.0E+00" (decimals 1) or "0.00E+00" (decimals 2): one digit, a point, the decimals,
/// "E", a sign, at least two exponent digits; rounded like fixed().
/// @throws RuntimeError Overflow when the value is not finite
[[nodiscard]] std::string scientific(float value, int decimals);
[[nodiscard]] std::string scientific(double value, int decimals);

/// General text: the shortest decimal that reads back to the same Single, without an exponent where the
/// magnitude lies from 0.00001 to 10 000 000 ("100", "0.75"), else as "1E-07".
/// @throws RuntimeError Overflow when the value is not finite
[[nodiscard]] std::string general(float value);
/// The same for a double (reference values held in double precision).
[[nodiscard]] std::string general(double value);
/// Plain digits of a whole number.
[[nodiscard]] std::string general(int value);

}  // namespace mero::numbers
