// SPDX-License-Identifier: MIT
/// Search of the design rain table for the critical rain: the one that asks the most of the facility.
/// One search serves every quantity (volume, trench length, water level).
#pragma once

#include <concepts>
#include <optional>

#include "calc/rain.h"

namespace mero::calc {

/// What a search found.
struct CriticalRain {
    /// The largest value, 0 when no row gave a positive one. A double: the caller stores it as a Single,
    /// after the picked rain.
    double maximum = 0.0;
    /// The row that gave it; empty when no row gave a positive value, then the picked rain stays as it is.
    std::optional<Rain> rain;
};

/// Which rows take part. Quantities that divide by the duration leave out rows without a positive one;
/// volumes take all nine (a row of duration 0 gives volume 0).
enum class Rows { All, PositiveDuration };

template <Rows rows>
[[nodiscard]] constexpr bool takesPart(const Rain& rain) {
    return rows == Rows::All || rain.duration_min > 0.0F;
}

/// Runs through the table in its order. The maximum starts at 0 and only a strictly greater value replaces
/// it, so of equal rows the earliest is the critical one.
/// @param quantity called with each row that takes part, gives the row's value
/// @throws whatever `quantity` throws
template <Rows rows, std::invocable<const Rain&> Quantity>
[[nodiscard]] CriticalRain findCriticalRain(RainTable table, Quantity quantity) {
    double maximum = 0.0;
    const Rain* critical = nullptr;
    for (const Rain& rain : table) {
        if (!takesPart<rows>(rain)) {
            continue;
        }
        const double value = quantity(rain);
        if (value > maximum) {
            maximum = value;
            critical = &rain;
        }
    }
    if (critical == nullptr) {
        return {};
    }
    return {.maximum = maximum, .rain = *critical};
}

}  // namespace mero::calc
