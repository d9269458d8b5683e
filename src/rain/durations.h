// SPDX-License-Identifier: MIT
/// Sets of nine durations for the rows of the rain table, and the rows of a curve at them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "rain/rain_curve.h"

namespace mero::rain {

inline constexpr std::size_t kRows = 9;
using Durations = std::array<double, kRows>;  ///< [min], rising

struct DurationSet {
    std::string_view name;     ///< of the command line
    std::string_view caption;  ///< for the window
    Durations durations_min;
};

/// From short to long. The first is the one of the shipped stations.
[[nodiscard]] std::span<const DurationSet> durationSets();
/// Null when none has that name.
[[nodiscard]] const DurationSet* findDurationSet(std::string_view name);

enum class RowOrigin : std::uint8_t {
    Given,
    Interpolated,
    Missing,  ///< shorter or longer than what the curve knows
};

struct CurveRow {
    CurvePoint point;  ///< intensity 0 when missing
    RowOrigin origin = RowOrigin::Missing;
};

[[nodiscard]] std::array<CurveRow, kRows> rowsOf(const RainCurve& curve, const Durations& durations_min);

/// The first set of which the curve knows every row; null for none.
[[nodiscard]] const DurationSet* coveredSet(const RainCurve& curve);

}  // namespace mero::rain
