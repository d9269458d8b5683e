// SPDX-License-Identifier: MIT
/// Tests of the uptake of one metre of trench.
#include "calc/trench_section.h"

#include <gtest/gtest.h>

#include "calc/samples.h"
#include "support/errors.h"

namespace mero::calc {
namespace {

using mero::test::errorNumberOf;
using test::expectClose;

constexpr TrenchSection kTrench{
    .width_m = 1.0F, .height_m = 1.5F, .storage_coefficient = 0.35F, .filtration_m_s = 1e-5F};

TEST(TrenchSection, SoaksThroughItsBottomAndHalfItsHeight) {
    EXPECT_EQ(infiltrationWidth(1.0, 1.5), 1.75);
}

TEST(TrenchSection, TakesItsPoresAndWhatSoaksAway) {
    // 1 * 1.5 * 0.35 / 1050 + 1.75 * 10^-5 / 2 = 0.0005 + 0.00000875
    expectClose(UptakePerMetre(kTrench).over(1050.0), 0.00050875);
}

TEST(TrenchSection, WithoutTimeDividesByZero) {
    EXPECT_EQ(errorNumberOf([] { return UptakePerMetre(kTrench).over(0.0); }), 11);
}

}  // namespace
}  // namespace mero::calc
