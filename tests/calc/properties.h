// SPDX-License-Identifier: MIT
/// Shared by the property tests of the design formulas: random sites, exact values, tolerances.
/// Each function is compared with its formula evaluated in extended precision.
#pragma once

// RapidCheck's header for GoogleTest needs GoogleTest included before it.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "calc/critical_rain.h"
#include "calc/samples.h"
#include "calc/trench_section.h"

namespace mero::calc::test {

using Exact = long double;

constexpr Exact kExactPi = 3.1415927410125732L;

/// A formula has at most some 20 operations in double, each with an error of at most 2^-53 of its result: a
/// tolerance of 64 times 2^-53 of the largest term is sufficient, and far below one step of a Single.
constexpr Exact kDoubleArithmetic = 64.0L * 0x1p-53L;
/// Storing rounds to the nearest Single: half a step, 2^-24 of the value.
constexpr Exact kSingleStore = 0x1p-24L + kDoubleArithmetic;

/// `largest_term` bounds the terms of a sum or difference, whose absolute errors are those of its terms.
inline bool near(Exact actual, Exact expected, Exact largest_term, Exact share) {
    return std::fabs(actual - expected) <= share * std::max(std::fabs(expected), std::fabs(largest_term));
}

/// A Single differs from the exact value by half a step, plus the errors of the terms of a difference.
inline bool storedNear(float actual, Exact expected, Exact largest_term) {
    return std::fabs(actual - expected) <=
           kSingleStore * std::fabs(expected) + kDoubleArithmetic * std::fabs(largest_term);
}

/// A decimal number from `low` to `high` in steps of `step`, as a user types it.
inline float number(double low, double high, double step) {
    const auto steps = static_cast<int>((high - low) / step) + 1;
    return static_cast<float>(low + step * *rc::gen::inRange(0, steps));
}

inline float area() {
    return number(1.0, 20000.0, 0.5);
}
inline float safetyFactor() {
    return number(0.8, 2.0, 0.05);
}
inline float length() {
    return number(0.1, 5.0, 0.01);
}
inline float porosity() {
    return number(0.05, 1.0, 0.01);
}

/// A coefficient from clay to gravel: one digit and a decimal times a power of ten.
inline float filtration() {
    return static_cast<float>(number(1.0, 9.9, 0.1) * std::pow(10.0, *rc::gen::inRange(-8, -2)));
}

/// Nine rows; one in five has no duration, as in a partly filled table.
inline Table rains() {
    Table table{};
    for (Rain& rain : table) {
        const bool empty = *rc::gen::inRange(0, 5) == 0;
        rain.duration_min = empty ? 0.0F : number(1.0, 180.0, 0.5);
        rain.intensity_l_s_ha = number(0.0, 500.0, 0.1);
    }
    return table;
}

inline TrenchSection trenchSection() {
    return {.width_m = length(),
            .height_m = length(),
            .storage_coefficient = porosity(),
            .filtration_m_s = filtration()};
}

/// A second implementation of the search: an exact value per row, the largest positive one is the result.
/// Where two rows differ by less than the tolerance, either may be critical.
struct ExactSearch {
    Exact maximum = 0.0L;
    Exact largest_term = 0.0L;
    Table table{};
    std::array<Exact, kRainRows> values{};

    template <typename Value, typename Term>
    ExactSearch(const Table& rain_table, bool skip_empty, Value value, Term term) : table(rain_table) {
        for (std::size_t k = 0; k < kRainRows; ++k) {
            if (skip_empty && table[k].duration_min <= 0.0F) {
                continue;
            }
            values[k] = value(table[k]);
            maximum = std::max(maximum, values[k]);
            largest_term = std::max(largest_term, static_cast<Exact>(std::fabs(term(table[k]))));
        }
    }

    void check(const CriticalRain& found) const {
        RC_ASSERT(near(found.maximum, maximum, largest_term, kDoubleArithmetic));
        RC_ASSERT(found.rain.has_value() == (found.maximum > 0.0));
        if (found.rain) {
            const auto row = std::find(table.begin(), table.end(), *found.rain);
            RC_ASSERT(row != table.end());
            RC_ASSERT(near(values[static_cast<std::size_t>(row - table.begin())], maximum, largest_term,
                           kDoubleArithmetic));
        }
    }
};

}  // namespace mero::calc::test
