// SPDX-License-Identifier: MIT
/// Rounding by arithmetic where it is sure to agree with the text, by the text itself where it is not.
/// The text rounds the shortest decimal of a Single, which lies within half a step of the Single itself.
#include "design/field_rounding.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <string>

#include "platform/numbers/number_text.h"

namespace mero::design {
namespace {

/// Half a step of a Single is at most 2^-24 of it; twice that leaves room for the arithmetic below.
constexpr double kShortestDecimalError = 0x1p-23;
/// From here on a Single is a whole number, and its shortest decimal too.
constexpr float kWholeNumbers = 0x1p23F;

template <int decimals>
float roundedTo(float value) {
    static_assert(decimals == 1 || decimals == 2);
    constexpr double kScale = decimals == 1 ? 10.0 : 100.0;
    const float magnitude = std::fabs(value);
    if (magnitude >= kWholeNumbers) {
        return value;
    }
    // Exact: 24 bits times at most 7 bits.
    const double scaled = static_cast<double>(magnitude) * kScale;
    const double below = std::floor(scaled);
    const double rest = scaled - below;
    if (std::fabs(rest - 0.5) <= scaled * kShortestDecimalError) {
        return numbers::strictSingle(numbers::fixed(value, decimals));
    }
    // The quotient is no closer to a midpoint of two Singles than 1 / (100 * 2^25) of itself unless it is
    // one, so rounding it to double first changes nothing.
    const auto rounded = static_cast<float>((rest > 0.5 ? below + 1.0 : below) / kScale);
    return value < 0.0F && rounded != 0.0F ? -rounded : rounded;
}

// Powers of ten for which two significant digits are tabulated.
constexpr int kSmallestExponent = -12;
constexpr int kLargestExponent = 3;
constexpr int kFirstMantissa = 10;
constexpr int kMantissas = 90;

using MantissaRow = std::array<float, kMantissas>;
using TwoDigitTable = std::array<MantissaRow, kLargestExponent - kSmallestExponent + 1>;

/// The Singles of all two-digit numbers n / 10 times ten to the exponent, read from their texts.
const TwoDigitTable& twoDigitTable() {
    static const TwoDigitTable kTable = [] {
        TwoDigitTable table{};
        for (int exponent = kSmallestExponent; exponent <= kLargestExponent; ++exponent) {
            for (int n = 0; n < kMantissas; ++n) {
                const std::string text =
                    numbers::general(n + kFirstMantissa) + "e" + numbers::general(exponent - 1);
                table[static_cast<std::size_t>(exponent - kSmallestExponent)][static_cast<std::size_t>(n)] =
                    numbers::strictSingle(text);
            }
        }
        return table;
    }();
    return kTable;
}

constexpr std::array<double, kLargestExponent - kSmallestExponent + 2> kPowersOfTen{
    1e-12, 1e-11, 1e-10, 1e-9, 1e-8, 1e-7, 1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1, 1e0, 1e1, 1e2, 1e3, 1e4};

float throughScientificField(float value) {
    const double exact = value;
    if (exact >= kPowersOfTen.front() && exact < kPowersOfTen.back()) {
        std::size_t row = 0;
        while (exact >= kPowersOfTen[row + 1]) {
            ++row;
        }
        const double mantissa = exact / kPowersOfTen[row] * 10.0;  // 10 to 100
        const double below = std::floor(mantissa);
        const double rest = mantissa - below;
        if (std::fabs(rest - 0.5) > mantissa * kShortestDecimalError) {
            auto column = static_cast<std::size_t>(rest > 0.5 ? below + 1.0 : below) - kFirstMantissa;
            if (column >= kMantissas) {
                column -= kMantissas;
                ++row;
            }
            if (row < twoDigitTable().size()) {
                return twoDigitTable()[row][column];
            }
        }
    }
    return numbers::strictSingle(numbers::scientific(value, 1));
}

}  // namespace

float throughField(float value, int decimals) {
    if (decimals == kScientific) {
        return throughScientificField(value);
    }
    return decimals == 1 ? roundedTo<1>(value) : roundedTo<2>(value);
}

}  // namespace mero::design
