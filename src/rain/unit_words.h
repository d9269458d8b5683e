// SPDX-License-Identifier: MIT
/// Units as the heads of tables write them.
#pragma once

#include <optional>
#include <string_view>

#include "rain/rain_table.h"

namespace mero::rain {

/// The unit of durations that the text names: "t [min]", "doba (h)", "Dauer hod.".
[[nodiscard]] std::optional<DurationUnit> durationUnitIn(std::string_view head);
/// The unit of values that the text names: "i [l/(s.ha)]", "l.s-1.ha-1", "mm/h", "úhrn mm".
[[nodiscard]] std::optional<ValueUnit> valueUnitIn(std::string_view head);

/// A duration with its unit behind the number: "5 min", "1 h", "1,5 hod". Minutes.
[[nodiscard]] std::optional<double> durationWithUnit(std::string_view cell, Style style);

}  // namespace mero::rain
