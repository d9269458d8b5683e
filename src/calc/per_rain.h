// SPDX-License-Identifier: MIT
/// The size of a facility that one rain requires: the formula for one row, and the rows that it is used for.
/// The search for the critical rain and the chart of all nine rows use the same object.
#pragma once

#include <array>
#include <optional>
#include <utility>

#include "calc/critical_rain.h"

namespace mero::calc {

/// The value of each row in the table's order, empty for a row that is not used.
using RainValues = std::array<std::optional<double>, kRainRows>;

template <Rows rows, std::invocable<const Rain&> Quantity>
class PerRain {
  public:
    explicit PerRain(Quantity quantity) : quantity_(std::move(quantity)) {}

    /// The critical rain. @throws whatever the formula throws
    [[nodiscard]] CriticalRain critical(RainTable rains) const {
        return findCriticalRain<rows>(rains, quantity_);
    }

    /// The value of each rain; may be negative. @throws whatever the formula throws
    [[nodiscard]] RainValues values(RainTable rains) const {
        RainValues values;
        for (std::size_t row = 0; row < values.size(); ++row) {
            if (takesPart<rows>(rains[row])) {
                values[row] = quantity_(rains[row]);
            }
        }
        return values;
    }

  private:
    Quantity quantity_;
};

/// @param quantity called with a row that is used, returns the row's value
template <Rows rows, std::invocable<const Rain&> Quantity>
[[nodiscard]] PerRain<rows, Quantity> perRain(Quantity quantity) {
    return PerRain<rows, Quantity>(std::move(quantity));
}

}  // namespace mero::calc
