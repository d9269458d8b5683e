// SPDX-License-Identifier: MIT
/// Checked arithmetic: the only places where a division by zero, an overflow or a root can go wrong.
/// What would be inf or nan is a RuntimeError here, so that neither ever reaches a stored value or a field.
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
    // One test for the usual case: whatever goes wrong gives a quotient that is not finite.
    const double quotient = dividend / divisor;
    if (!std::isfinite(quotient)) {
        throw RuntimeError(divisor == 0.0 ? ErrorNumber::DivisionByZero : ErrorNumber::Overflow);
    }
    return quotient;
}

/// dividend / divisor for products of a few Singles: these stay so far inside the range of a double that the
/// quotient cannot overflow, and only a zero divisor has to be looked for (in the innermost loops).
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
