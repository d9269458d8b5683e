// SPDX-License-Identifier: MIT
/// Tests of the throttled outflow and of the storage coefficient of a trench with pipes.
#include "calc/drain.h"

#include <gtest/gtest.h>

#include "calc/samples.h"
#include "support/errors.h"

namespace mero::calc::drain {
namespace {

using mero::test::errorNumberOf;
using test::expectClose;

constexpr Pipes kTwoPipes{.inner_diameter_mm = 150.0F, .outer_diameter_mm = 160.0F, .count = 2.0F};

TEST(ThrottledOutflow, IsTheAllowedIntensityOverTheReducedArea) {
    // 2 ha * 5 l/(s.ha) = 10 l/s
    EXPECT_EQ(throttledOutflow(20000.0F, 5.0F), 0.01F);
    EXPECT_EQ(throttledOutflow(20000.0F, 0.0F), 0.0F);
    EXPECT_EQ(throttledOutflow(0.0F, 5.0F), 0.0F);
}

TEST(StorageCoefficient, AddsThePipesAndTakesAwayTheFillTheyDisplace) {
    // Interiors 0.15^2 * 2 / 0.35 = 0.128571429, pipes 0.16^2 * 2 = 0.0512; difference 0.077371429,
    // * pi / 4 = 0.060767379; (0.060767379 + 1.5) * 0.35 / 1.5 = 0.364179055
    expectClose(storageCoefficient(kTwoPipes, 0.35F, 1.0F, 1.5F), 0.364179055);
}

TEST(StorageCoefficient, WithoutPipesIsThePorosity) {
    EXPECT_EQ(storageCoefficient({0.0F, 0.0F, 1.0F}, 0.35F, 1.0F, 1.5F), 0.35F);
    EXPECT_EQ(storageCoefficient({150.0F, 160.0F, 0.0F}, 0.35F, 0.7F, 1.3F), 0.35F);
}

TEST(StorageCoefficient, OfSolidPipesFallsBelowThePorosity) {
    // No interior: (1.5 - 0.0512 * pi / 4) * 0.35 / 1.5 = (1.5 - 0.040212386) / 1.5 * 0.35 = 0.340617110
    expectClose(storageCoefficient({0.0F, 160.0F, 2.0F}, 0.35F, 1.0F, 1.5F), 0.340617110);
}

TEST(StorageCoefficient, DividesByPorosityAndSection) {
    EXPECT_EQ(errorNumberOf([] { return storageCoefficient(kTwoPipes, 0.0F, 1.0F, 1.5F); }), 11);
    EXPECT_EQ(errorNumberOf([] { return storageCoefficient(kTwoPipes, 0.35F, 0.0F, 1.5F); }), 11);
    EXPECT_EQ(errorNumberOf([] { return storageCoefficient(kTwoPipes, 0.35F, 1.0F, 0.0F); }), 11);
    EXPECT_EQ(errorNumberOf([] { return storageCoefficient({1e30F, 0.0F, 1.0F}, 0.35F, 1.0F, 1.0F); }), 6);
}

}  // namespace
}  // namespace mero::calc::drain
