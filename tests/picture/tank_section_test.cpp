// SPDX-License-Identifier: MIT
// Sections of tanks: the slopes, and how far the required storage fills the tank.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "picture/facility_sections.h"
#include "picture/picture_support.h"

namespace mero::picture {
namespace {

using testing::ElementsAre;

/// 10 m x 10 m, 2 m deep, 1 : 1: 14 m x 14 m at the top, 2/3 * (196 + 100 + 140) = 290.67 m3.
constexpr TankValues kTank{.bottom_length_m = 10,
                           .bottom_width_m = 10,
                           .depth_m = 2,
                           .slope = 1,
                           .required_storage_m3 = 364.0F / 3.0F,
                           .volume_m3 = 290.67F};

TEST(TankSection, HasItsSlopesAndIsFilledAsFarAsNeeded) {
    const Section section = tankSection(kTank);
    ASSERT_TRUE(section.drawable());
    EXPECT_THAT(cornersOf(section, Material::Air),
                ElementsAre(Point{-2, 0}, Point{12, 0}, Point{10, 2}, Point{0, 2}));
    // 1 m of water: 1/3 * (144 + 100 + 120) = 364 / 3 m3.
    const std::vector<Point> water = cornersOf(section, Material::Water);
    ASSERT_EQ(water.size(), 4U);
    EXPECT_NEAR(water[0].x, -1, 1e-3);
    EXPECT_NEAR(water[0].y, 1, 1e-3);
    EXPECT_NEAR(water[1].x, 11, 1e-3);
    EXPECT_EQ(water[2], (Point{10, 2}));
    EXPECT_THAT(dimensionsOf(section), ElementsAre("hloubka 2 m", "nahoře 14.00 m", "šířka dna 10 m"));
    EXPECT_THAT(section.notes, ElementsAre("sklon svahů 1 : 1, délka dna 10 m"));
    EXPECT_EQ(
        section.summary,
        "Řez vsakovací nádrží: dno 10 × 10 m, hloubka 2 m, sklon svahů 1 : 1, objem 290.67 m³, potřebný "
        "objem 121.33 m³.");
}

TEST(TankSection, AVerticalTankFillsEvenly) {
    TankValues values = kTank;
    values.slope = 0;
    values.volume_m3 = 200.0F;
    values.required_storage_m3 = 50.0F;
    const std::vector<Point> water = cornersOf(tankSection(values), Material::Water);
    ASSERT_EQ(water.size(), 4U);
    EXPECT_NEAR(water[0].y, 1.5, 1e-4) << "a quarter of the depth";
    EXPECT_EQ(water[0].x, 0);
}

TEST(TankSection, ATankThatIsTooSmallIsFullAndOneThatNeedsNothingEmpty) {
    TankValues values = kTank;
    values.required_storage_m3 = 1000.0F;
    EXPECT_EQ(cornersOf(tankSection(values), Material::Water).at(0), (Point{-2, 0}));
    values.required_storage_m3 = 0.0F;
    const std::vector<Point> water = cornersOf(tankSection(values), Material::Water);
    EXPECT_TRUE(water.empty() || water[0].y > 1.999);
}

TEST(TankSection, HasAHintBeforeTheResultsAndForOddValues) {
    EXPECT_EQ(tankSection({}).hint, "Řez se nakreslí po výpočtu.");
    TankValues values = kTank;
    values.slope = -0.1F;
    EXPECT_EQ(tankSection(values).hint, "Z těchto hodnot nelze řez nakreslit.");
    values.slope = 1e38F;
    EXPECT_EQ(tankSection(values).hint, "Z těchto hodnot nelze řez nakreslit.");
}

}  // namespace
}  // namespace mero::picture
