// SPDX-License-Identifier: MIT
/// Tests of the units and constants that every design formula uses.
#include "calc/rain.h"

#include <gtest/gtest.h>

namespace mero::calc {
namespace {

TEST(Units, OneLitrePerSecondAndHectareIsTenToTheMinusSevenMetresPerSecond) {
    EXPECT_EQ(kRatePerIntensity, 1e-3 / 1e4);
    EXPECT_EQ(kRatePerIntensity * kIntensityPerRate, 1.0);
}

TEST(Units, ARowIsEmptyAtFirst) {
    EXPECT_EQ(Rain{}, (Rain{0.0F, 0.0F}));
    EXPECT_NE(Rain{}, (Rain{0.0F, 1.0F}));
}

TEST(Units, CircleNumberIsTheSinglePrecisionOne) {
    EXPECT_EQ(kPi, static_cast<double>(3.14159265358979F));
    EXPECT_NE(kPi, 3.14159265358979);
}

TEST(Units, BalanceTimeIsTheStretchedDurationInSeconds) {
    EXPECT_EQ(balanceSeconds({15.0F, 150.0F}, 1.5), 1350.0);
    EXPECT_EQ(balanceSeconds({-15.0F, 150.0F}, 1.5), -1350.0);
}

}  // namespace
}  // namespace mero::calc
