// SPDX-License-Identifier: MIT
/// Rounding by arithmetic against the text that a field shows: equal bit by bit.
#include "design/field_rounding.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "platform/numbers/number_text.h"

namespace mero::design {
namespace {

void expectEqualToText(float value) {
    const auto bits = [](float number) { return std::bit_cast<std::uint32_t>(number); };
    ASSERT_EQ(bits(throughField(value, 1)), bits(numbers::strictSingle(numbers::fixed(value, 1)))) << value;
    ASSERT_EQ(bits(throughField(value, 2)), bits(numbers::strictSingle(numbers::fixed(value, 2)))) << value;
    ASSERT_EQ(bits(throughField(value, kScientific)),
              bits(numbers::strictSingle(numbers::scientific(value, 1))))
        << value;
}

TEST(FieldRounding, RoundsAsOnPaper) {
    EXPECT_EQ(throughField(428.5714F, 1), 428.6F);
    EXPECT_EQ(throughField(0.25F, 1), 0.3F);
    EXPECT_EQ(throughField(-0.25F, 1), -0.3F);
    EXPECT_EQ(throughField(2.675F, 2), 2.68F);  // the Single lies below 2.675
    EXPECT_EQ(throughField(1.005F, 2), 1.01F);
    EXPECT_EQ(throughField(1.25e-4F, kScientific), 1.3e-4F);
    EXPECT_EQ(throughField(9.96e-5F, kScientific), 1.0e-4F);
}

TEST(FieldRounding, NothingIsLeftOfTheSignOfZero) {
    EXPECT_FALSE(std::signbit(throughField(-0.04F, 1)));
    EXPECT_FALSE(std::signbit(throughField(-0.0F, 2)));
    EXPECT_EQ(throughField(0.0F, kScientific), 0.0F);
}

TEST(FieldRounding, EqualsTheTextAtEveryTie) {
    for (int n = 0; n < 50000; ++n) {
        const double tie1 = n / 10.0 + 0.05;
        const double tie2 = n / 100.0 + 0.005;
        for (const double tie : {tie1, tie2}) {
            const auto value = static_cast<float>(tie);
            for (const float near :
                 {value, std::nextafter(value, 0.0F), std::nextafter(value, 1e9F), -value}) {
                ASSERT_NO_FATAL_FAILURE(expectEqualToText(near));
            }
        }
    }
}

TEST(FieldRounding, EqualsTheTextAtEveryTieOfTwoDigits) {
    for (int exponent = -13; exponent <= 5; ++exponent) {
        for (int n = 100; n < 1000; ++n) {
            const auto value = static_cast<float>(n * std::pow(10.0, exponent - 2));
            for (const float near : {value, std::nextafter(value, 0.0F), std::nextafter(value, 1e9F)}) {
                ASSERT_NO_FATAL_FAILURE(expectEqualToText(near));
            }
        }
    }
}

TEST(FieldRounding, EqualsTheTextForEveryKindOfSingle) {
    // Every exponent and both signs, with a stride through the mantissas that has no factor 2.
    for (std::uint32_t bits = 0; bits < 0xFFFF0000U; bits += 12553U) {
        const auto value = std::bit_cast<float>(bits);
        if (std::isfinite(value)) {
            ASSERT_NO_FATAL_FAILURE(expectEqualToText(value));
        }
    }
    expectEqualToText(std::numeric_limits<float>::max());
    expectEqualToText(std::numeric_limits<float>::denorm_min());
}

}  // namespace
}  // namespace mero::design
