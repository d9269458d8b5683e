// SPDX-License-Identifier: MIT
/// Computes each value of a range from its start, so that rounding errors do not accumulate.
/// The end of a range is included when it differs from the last step by rounding only.
#include "sweep/value_lists.h"

#include <cmath>
#include <stdexcept>

#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::sweep {
namespace {

constexpr std::string_view kLogarithmic = "log";
/// Tolerance of a whole number of steps after a division.
constexpr double kStepRounding = 1e-6;

double numberOf(std::string_view text) {
    try {
        // strictSingle() checks the grammar; leadingNumber() reads all digits.
        static_cast<void>(numbers::strictSingle(text));
    } catch (const RuntimeError&) {
        throw std::invalid_argument("expected a number, not \"" + std::string(text) + "\"");
    }
    return numbers::leadingNumber(text);
}

std::vector<double> steps(double from, double to, double step) {
    if (step == 0.0 || (to - from) / step < 0.0) {
        throw std::invalid_argument("expected a step that leads from the first value to the last");
    }
    const double count = std::floor((to - from) / step + kStepRounding) + 1.0;
    if (!(count <= static_cast<double>(kMostValues))) {
        throw std::invalid_argument("expected at most 100000 values");
    }
    std::vector<double> numbers;
    for (std::size_t k = 0; k < static_cast<std::size_t>(count); ++k) {
        numbers.push_back(from + static_cast<double>(k) * step);
    }
    return numbers;
}

std::vector<double> ratios(double from, double to, double count) {
    if (!(from > 0.0 && to > 0.0)) {
        throw std::invalid_argument("expected a logarithmic range between numbers greater than 0");
    }
    if (!(count >= 2.0 && count <= static_cast<double>(kMostValues) && count == std::floor(count))) {
        throw std::invalid_argument("expected a count from 2 to 100000 at the end of a logarithmic range");
    }
    std::vector<double> numbers;
    const auto last = static_cast<std::size_t>(count) - 1;
    for (std::size_t k = 0; k <= last; ++k) {
        const double share = static_cast<double>(k) / static_cast<double>(last);
        numbers.push_back(k == last ? to : from * std::pow(to / from, share));
    }
    return numbers;
}

}  // namespace

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator)) {
        parts.push_back(text.substr(0, at));
        text.remove_prefix(at + 1);
    }
    parts.push_back(text);
    return parts;
}

std::optional<NumberRange> numberRange(std::string_view text) {
    const std::vector<std::string_view> parts = split(text, ':');
    if (parts.front() == kLogarithmic) {
        if (parts.size() != 4) {
            throw std::invalid_argument("expected log:FROM:TO:COUNT");
        }
        return NumberRange{ratios(numberOf(parts[1]), numberOf(parts[2]), numberOf(parts[3])), true};
    }
    if (parts.size() == 1) {
        return std::nullopt;
    }
    if (parts.size() != 3) {
        throw std::invalid_argument("expected a range FROM:TO:STEP");
    }
    return NumberRange{steps(numberOf(parts[0]), numberOf(parts[1]), numberOf(parts[2]))};
}

}  // namespace mero::sweep
