// SPDX-License-Identifier: MIT
/// Searches the design rain table for the critical rain: the one that requires the largest facility.
/// The same search is used for every quantity (volume, trench length, water level).
#pragma once

#include <concepts>
#include <optional>

#include "calc/rain.h"

namespace mero::calc {

/// Result of a search.
struct CriticalRain {
    /// The largest value, 0 when no row gave a positive one. A double, because the caller first stores the
    /// picked rain and then this value as a Single.
    double maximum = 0.0;
    /// The row that gave it; empty when no row gave a positive value: the picked rain is then unchanged.
    std::optional<Rain> rain;
};

/// Which rows are used. Quantities that divide by the duration skip rows without a positive duration; volumes
/// use all nine (a row of duration 0 gives volume 0).
enum class Rows { All, PositiveDuration };

template <Rows rows>
[[nodiscard]] constexpr bool takesPart(const Rain& rain) {
    return rows == Rows::All || rain.duration_min > 0.0F;
}

/// Searches the table in its order. The maximum starts at 0 and only a strictly greater value replaces it, so
/// of rows with equal values the first is the critical one.
/// @param quantity called with each row used, returns the row's value
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
