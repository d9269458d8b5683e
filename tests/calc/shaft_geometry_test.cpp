// SPDX-License-Identifier: MIT
/// Tests of the diameters of round and rectangular shafts.
#include "calc/shaft_geometry.h"

#include <gtest/gtest.h>

#include "platform/numbers/number_text.h"
#include "support/errors.h"

namespace mero::calc::shaft_geometry {
namespace {

using mero::test::errorNumberOf;
using numbers::fixed;

TEST(RoundShaft, OuterDiameterHasTheWallOnBothSides) {
    EXPECT_EQ(roundOuterDiameter(1.0F, 0.1F), 1.2F);
    EXPECT_EQ(roundOuterDiameter(1.5F, 0.12F), 1.74F);
}

TEST(RoundShaft, WithoutAWallIsAsWideOutsideAsInside) {
    EXPECT_EQ(roundOuterDiameter(1.0F, 0.0F), 1.0F);
    EXPECT_EQ(roundOuterDiameter(0.0F, 0.1F), 0.2F);
}

TEST(RectangularShaft, CountsAsACircleOfTheSameArea) {
    // sqrt(4 / pi), and the wall once on each side: sqrt(4 * 1.21 / pi)
    EXPECT_EQ(fixed(equivalentInnerDiameter(1.0F, 1.0F), 4), "1.1284");
    EXPECT_EQ(fixed(equivalentOuterDiameter(1.0F, 1.0F, 0.1F), 4), "1.2412");
    // sqrt(4 * 1.2 / pi) = 1.236077; sqrt(4 * 1.6 * 0.9 / pi) = 1.354055
    EXPECT_EQ(fixed(equivalentInnerDiameter(1.5F, 0.8F), 6), "1.236077");
    EXPECT_EQ(fixed(equivalentOuterDiameter(1.5F, 0.8F, 0.1F), 6), "1.354055");
}

TEST(RectangularShaft, HasNoDiameterWithoutASide) {
    EXPECT_EQ(equivalentInnerDiameter(1.0F, 0.0F), 0.0F);
    EXPECT_EQ(equivalentOuterDiameter(0.0F, 0.0F, 0.0F), 0.0F);
}

TEST(RectangularShaft, NegativeAreaHasNoRoot) {
    EXPECT_EQ(errorNumberOf([] { return equivalentInnerDiameter(-1.0F, 1.0F); }), 5);
    EXPECT_EQ(errorNumberOf([] { return equivalentOuterDiameter(1.0F, 1.0F, -1.5F); }), 0);
    EXPECT_EQ(errorNumberOf([] { return equivalentOuterDiameter(1.0F, 2.0F, -1.5F); }), 5);
}

}  // namespace
}  // namespace mero::calc::shaft_geometry
