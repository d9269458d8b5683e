// SPDX-License-Identifier: MIT
/// Rain tables and tolerances shared by the tests of the design formulas.
/// The expected numbers are computed from these decimal values.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "calc/rain.h"

namespace mero::calc::test {

using Table = std::array<Rain, kRainRows>;

/// A plausible station: the intensity decreases with the duration.
inline constexpr Table kStorms{{{5.0F, 300.0F},
                                {10.0F, 200.0F},
                                {15.0F, 150.0F},
                                {20.0F, 120.0F},
                                {30.0F, 90.0F},
                                {45.0F, 65.0F},
                                {60.0F, 50.0F},
                                {90.0F, 36.0F},
                                {120.0F, 28.0F}}};

/// No rain read yet: every duration is 0.
inline constexpr Table kEmptyTable{};

/// A table with the given first rows; the others are empty.
template <typename... Rains>
constexpr Table tableOf(Rains... rains) {
    return Table{{rains...}};
}

/// Inputs such as 0.00001 are rounded to Single (6e-8 of the value each). A formula with a few of them and a
/// difference of terms of similar size has a relative error below this tolerance.
inline constexpr double kSingleInputs = 2e-6;

inline void expectClose(double actual, double expected) {
    EXPECT_NEAR(actual, expected, std::fabs(expected) * kSingleInputs);
}

}  // namespace mero::calc::test
