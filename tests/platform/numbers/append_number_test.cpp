// SPDX-License-Identifier: MIT
/// Appending writes the same text as general() and does not change the text before it.
#include "platform/numbers/append_number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/numbers/number_text.h"

namespace mero::numbers {
namespace {

std::string appended(float value) {
    std::string text = "before ";
    appendGeneral(text, value);
    return text;
}

TEST(AppendGeneral, WritesBehindWhatIsThere) {
    EXPECT_EQ(appended(131.2F), "before 131.2");
    EXPECT_EQ(appended(-0.75F), "before -0.75");
    EXPECT_EQ(appended(0.0F), "before 0");
    EXPECT_EQ(appended(-0.0F), "before 0");
    EXPECT_EQ(appended(1e-5F), "before 0.00001");
    EXPECT_EQ(appended(1e7F), "before 10000000");
    EXPECT_EQ(appended(1.25e-7F), "before 1.25E-07");
    EXPECT_EQ(appended(1.2e-7F), "before 1.2E-07");
    EXPECT_EQ(appended(1e-7F), "before 1E-07");
    EXPECT_EQ(appended(3e38F), "before 3E+38");
    EXPECT_EQ(appended(1.0F), "before 1");
    EXPECT_EQ(appended(100.0F), "before 100");
    EXPECT_EQ(appended(123.0F), "before 123");
}

TEST(AppendGeneral, EqualsTheGeneralTextOfEveryKindOfSingle) {
    for (std::uint32_t bits = 0; bits < 0xFFFF0000U; bits += 30011U) {
        const auto value = std::bit_cast<float>(bits);
        if (std::isfinite(value)) {
            ASSERT_EQ(appended(value), "before " + general(value));
        }
    }
    EXPECT_EQ(appended(std::numeric_limits<float>::max()),
              "before " + general(std::numeric_limits<float>::max()));
}

}  // namespace
}  // namespace mero::numbers
