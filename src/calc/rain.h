// SPDX-License-Identifier: MIT
/// The design rain table for the calculation, and the unit constants of the design formulas.
/// Quantities are passed as Singles; each formula converts them to double before the first operation.
#pragma once

#include <cstddef>
#include <span>

namespace mero::calc {

/// One row of the design rain table: duration and intensity.
struct Rain {
    float duration_min = 0.0F;
    float intensity_l_s_ha = 0.0F;

    bool operator==(const Rain&) const = default;
};

inline constexpr std::size_t kRainRows = 9;

/// The nine rows of the design rain table, in the table's order. Rows without a rain have duration 0.
using RainTable = std::span<const Rain, kRainRows>;

/// The rate in m/s of one l/(s.ha): a litre is 10^-3 m3, a hectare 10^4 m2, so 10^-3 / 10^4.
inline constexpr double kRatePerIntensity = 1e-7;
/// The intensity in l/(s.ha) of one m/s: the reciprocal, a whole number and therefore exact.
inline constexpr double kIntensityPerRate = 1e7;
inline constexpr double kSquareMetresPerHectare = 10000.0;
inline constexpr double kSquareCentimetresPerSquareMetre = 10000.0;
inline constexpr double kLitresPerCubicMetre = 1000.0;
inline constexpr double kMillimetresPerMetre = 1000.0;
inline constexpr double kSecondsPerMinute = 60.0;
inline constexpr double kSecondsPerHour = 3600.0;

/// Pi rounded to Single: the formulas use it in this precision.
inline constexpr double kPi = 3.1415927410125732;

/// A rain's duration in seconds, multiplied by the safety factor: the time over which a balance is computed.
[[nodiscard]] constexpr double balanceSeconds(const Rain& rain, double safety_factor) {
    return static_cast<double>(rain.duration_min) * kSecondsPerMinute * safety_factor;
}

}  // namespace mero::calc
