// SPDX-License-Identifier: MIT
/// Arithmetic of the reference designs: extended precision, a rounding to Single at each store, and the
/// faults that the program reports.
#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace mero::forms::test {

using Exact = long double;

inline constexpr Exact kPi = 3.1415927410125732L;
inline constexpr Exact kRate = 1e-7L;

/// The number of the run-time error.
struct Fault {
    int number;
};

inline float store(Exact value) {
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single)) {
        throw Fault{6};
    }
    return single;
}

inline Exact divide(Exact dividend, Exact divisor) {
    if (divisor == 0) {
        throw Fault{11};
    }
    return dividend / divisor;
}

inline Exact root(Exact value) {
    if (value < 0) {
        throw Fault{5};
    }
    return std::sqrt(value);
}

/// The texts of the checks that fail, one line each.
inline std::string lines(const std::vector<std::pair<bool, const char*>>& checks) {
    std::string text;
    for (const auto& [fails, line] : checks) {
        text += fails ? std::string(line) + "\r\n" : "";
    }
    return text;
}

}  // namespace mero::forms::test
