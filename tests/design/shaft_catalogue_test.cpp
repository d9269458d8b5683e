// SPDX-License-Identifier: MIT
/// The catalogue of shaft rings: the round ones first, each with its dimensions.
#include "design/shaft_catalogue.h"

#include <gtest/gtest.h>

#include <set>

namespace mero::design {
namespace {

TEST(ShaftCatalogue, EightRoundRowsComeBeforeTenRectangularOnes) {
    const auto shafts = shaftCatalogue();
    ASSERT_EQ(shafts.size(), 18U);
    std::set<std::string> designations;
    for (std::size_t row = 0; row < shafts.size(); ++row) {
        EXPECT_EQ(shafts[row].shape, row < 8 ? data::ShaftShape::Round : data::ShaftShape::Rectangular);
        EXPECT_TRUE(designations.insert(shafts[row].designation).second) << shafts[row].designation;
    }
}

TEST(ShaftCatalogue, ARoundRowHasADiameterAndAWall) {
    const CatalogueShaft& shaft = shaftCatalogue()[3];
    EXPECT_EQ(shaft.designation, "RSA - Q.1 120/..");
    EXPECT_EQ(shaft.side1_m, 1.2F);
    EXPECT_EQ(shaft.side2_m, 0.0F);
    EXPECT_EQ(shaft.wall_m, 0.135F);
}

TEST(ShaftCatalogue, ARectangularRowHasTwoSidesAndAWall) {
    const CatalogueShaft& shaft = shaftCatalogue()[8];
    EXPECT_EQ(shaft.designation, "RSD 240/190/..");
    EXPECT_EQ(shaft.side1_m, 2.4F);
    EXPECT_EQ(shaft.side2_m, 1.9F);
    EXPECT_EQ(shaft.wall_m, 0.1F);
}

}  // namespace
}  // namespace mero::design
