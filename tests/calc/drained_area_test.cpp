// SPDX-License-Identifier: MIT
/// Tests of the reduced drained area.
/// The running total is a Single after every addition.
#include "calc/drained_area.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/numbers/number_text.h"
#include "support/errors.h"

namespace mero::calc {
namespace {

using mero::test::errorNumberOf;

TEST(ReducedArea, WeighsPartialAreasByTheirCoefficients) {
    const std::array coefficients{0.9F, 0.2F};
    const std::array areas{100.0F, 50.0F};
    EXPECT_EQ(numbers::general(reducedArea(coefficients, areas)), "100");
}

TEST(ReducedArea, IsZeroWithoutEntries) {
    EXPECT_EQ(reducedArea({}, {}), 0.0F);
}

TEST(ReducedArea, TotalIsRoundedAfterEveryAddition) {
    // Above 2^24 a Single has a step of 2: each addition of 1 m2 is lost, their sum would not be.
    const std::array coefficients{1.0F, 1.0F, 1.0F};
    EXPECT_EQ(reducedArea(coefficients, std::array{16777216.0F, 1.0F, 1.0F}), 16777216.0F);
    EXPECT_EQ(reducedArea(coefficients, std::array{1.0F, 1.0F, 16777216.0F}), 16777218.0F);
}

TEST(ReducedArea, ProductIsNotRoundedBeforeItIsAdded) {
    // (1 + 2^-13) * (1 - 2^-13) = 1 - 2^-26, which a Single would round up to 1. At 16777218 a Single has a
    // step of 2: the sum 16777218.99999999 is rounded down, 16777219 would be a tie, rounded up to 16777220.
    EXPECT_EQ(addPartialArea(16777218.0F, 1.0001220703125F, 0.9998779296875F), 16777218.0F);
    EXPECT_EQ(addPartialArea(16777218.0F, 1.0F, 1.0F), 16777220.0F);
}

TEST(ReducedArea, AcceptsCoefficientsAboveOneAndNegativeAreas) {
    const std::array coefficients{1.5F, 1.0F};
    EXPECT_EQ(reducedArea(coefficients, std::array{100.0F, -50.0F}), 100.0F);
}

TEST(ReducedArea, BeyondASingleOverflows) {
    EXPECT_EQ(errorNumberOf([] { return addPartialArea(3e38F, 1.0F, 3e38F); }), 6);
    EXPECT_EQ(errorNumberOf([] { return reducedArea(std::array{2.0F}, std::array{3e38F}); }), 6);
}

}  // namespace
}  // namespace mero::calc
