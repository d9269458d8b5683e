// SPDX-License-Identifier: MIT
/// Checked arithmetic: divisions, roots and stores that can fail.
/// A result of inf or nan throws a RuntimeError, so neither ever reaches a stored value or a field.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/numbers/runtime_error.h"

namespace mero::numbers {

/// Stores a double in a Single (round to nearest).
/// @throws RuntimeError Overflow when the value is not finite or rounds beyond the largest Single
[[nodiscard]] inline float toSingle(double value) {
    const auto stored = static_cast<float>(value);
    if (!std::isfinite(stored)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return stored;
}

/// dividend / divisor.
/// @throws RuntimeError DivisionByZero when the divisor is 0, Overflow when the quotient is not finite
[[nodiscard]] inline double divide(double dividend, double divisor) {
    // One test in the usual case: every error gives a quotient that is not finite.
    const double quotient = dividend / divisor;
    if (!std::isfinite(quotient)) {
        throw RuntimeError(divisor == 0.0 ? ErrorNumber::DivisionByZero : ErrorNumber::Overflow);
    }
    return quotient;
}

/// dividend / divisor for products of a few Singles, in the innermost loops. Such products stay so far inside
/// the range of a double that the quotient cannot overflow, so only a zero divisor is checked.
/// @throws RuntimeError DivisionByZero when the divisor is 0
[[nodiscard]] inline double divideOfSingles(double dividend, double divisor) {
    if (divisor == 0.0) {
        throw RuntimeError(ErrorNumber::DivisionByZero);
    }
    return dividend / divisor;
}

/// Square root. @throws RuntimeError InvalidCall when the value is negative or not a number
[[nodiscard]] inline double squareRoot(double value) {
    if (!(value >= 0.0)) {
        throw RuntimeError(ErrorNumber::InvalidCall);
    }
    return std::sqrt(value);
}

/// Rounds to the nearest 16-bit Integer, halves to even (2.5 gives 2, 3.5 gives 4).
/// @throws RuntimeError Overflow outside -32768 to 32767
[[nodiscard]] inline std::int16_t toInteger(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
          rounded <= std::numeric_limits<std::int16_t>::max())) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<std::int16_t>(rounded);
}

}  // namespace mero::numbers
