// SPDX-License-Identifier: MIT
/// Tests of the inflow into the facility.
#include "calc/inflow.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace mero::calc {
namespace {

using mero::test::errorNumberOf;

TEST(Inflow, IsAreaInHectaresTimesIntensity) {
    // 0.1 ha * 150 l/(s.ha)
    EXPECT_EQ(inflow(1000.0F, 150.0F), 15.0F);
    EXPECT_EQ(inflow(12500.0F, 131.2F), 164.0F);
}

TEST(Inflow, IsZeroWithoutAreaOrRain) {
    EXPECT_EQ(inflow(0.0F, 150.0F), 0.0F);
    EXPECT_EQ(inflow(1000.0F, 0.0F), 0.0F);
}

TEST(Inflow, OfANegativeAreaIsNegative) {
    EXPECT_EQ(inflow(-1000.0F, 150.0F), -15.0F);
}

TEST(Inflow, BeyondASingleOverflows) {
    EXPECT_EQ(errorNumberOf([] { return inflow(1e38F, 1e6F); }), 6);
    EXPECT_EQ(inflow(1e38F, 1e4F), 1e38F);
}

}  // namespace
}  // namespace mero::calc
