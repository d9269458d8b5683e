// SPDX-License-Identifier: MIT
/// Designs worked out by hand: what they give, what they tell, where they stop.
#include "design/design.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "design/messages.h"

namespace mero::design {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// 1000 m2 on kf 1e-4 with one rain of 150 l/(s.ha) for 15 min, picked.
Site oneRain() {
    Site site;
    site.has_areas = true;
    site.reduced_area_m2 = 1000.0F;
    site.rains[0] = {.duration_min = 15.0F, .intensity_l_s_ha = 150.0F};
    site.picked_row = 0;
    site.filtration_m_s = 1e-4F;
    return site;
}

std::vector<VerdictId> told(const DesignResult& result) {
    std::vector<VerdictId> ids;
    for (const Verdict& verdict : result.verdicts.all()) {
        ids.push_back(verdict.id);
    }
    return ids;
}

TEST(Design, ASurfaceIsStoredAsItsFieldShowsIt) {
    const DesignResult result = design(oneRain(), Facility{});
    EXPECT_EQ(result.value(Quantity::InfiltrationArea), 428.6F);  // 1000 / (1000 / 300 - 1) = 428.571...
    EXPECT_EQ(result.written(Quantity::InfiltrationArea), 428.57144F);
    EXPECT_EQ(result.value(Quantity::Inflow), 15.0F);
    EXPECT_THAT(told(result), IsEmpty());
    EXPECT_TRUE(result.completed);
}

TEST(Design, TheFiltrationCoefficientKeepsTwoDigits) {
    Site site = oneRain();
    site.filtration_m_s = 1.04e-4F;
    EXPECT_EQ(design(site, Facility{}).value(Quantity::InfiltrationArea), 428.6F);
}

TEST(Design, ASurfaceWithoutPickedRainLosesItsType) {
    Site site = oneRain();
    site.picked_row = -1;
    const DesignResult result = design(site, Facility{});
    EXPECT_THAT(told(result), ElementsAre(VerdictId::DesignRainMissing));
    EXPECT_FALSE(result.type_chosen);
    EXPECT_FALSE(result.has(Quantity::Inflow));
}

TEST(Design, ABalanceOfSoilAndRainIsToldAsARuntimeError) {
    Site site = oneRain();
    site.filtration_m_s = 0.5F;
    site.rains[0].intensity_l_s_ha = 2.5e6F;  // kf * 1e7 = 2 i
    const DesignResult result = design(site, Facility{});
    EXPECT_EQ(result.firstError(), ErrorNumber::DivisionByZero);
    EXPECT_FALSE(result.has(Quantity::InfiltrationArea));
}

TEST(Design, MissingAreaIsToldAndOnlyTheTankStops) {
    Site site = oneRain();
    site.reduced_area_m2 = 0.0F;
    Facility facility;
    facility.type = FacilityType::Trench;
    facility.txtSirkaRyhy = 1.0F;
    facility.txtVyskaRyhy = 1.0F;
    const DesignResult trench = design(site, facility);
    EXPECT_THAT(told(trench), ElementsAre(VerdictId::DrainedAreaMissing));
    EXPECT_TRUE(trench.has(Quantity::TrenchLength));

    facility.type = FacilityType::Tank;
    const DesignResult tank = design(site, facility);
    EXPECT_THAT(told(tank), ElementsAre(VerdictId::DrainedAreaMissing));
    EXPECT_FALSE(tank.type_chosen);
}

TEST(Design, FailedChecksOfAPageShareOneMessage) {
    Facility facility;
    facility.type = FacilityType::Trench;
    facility.txtPorVyplne = -1.0F;
    facility.txtSirkaRyhy = 1.0F;
    const DesignResult result = design(oneRain(), facility);
    EXPECT_THAT(told(result),
                ElementsAre(VerdictId::TrenchHeightNotPositive, VerdictId::FillPorosityNotPositive));
    const std::vector<Message> boxes = messages(result.verdicts.all());
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Výška rýhy je menší nebo rovna nule.\r\nPórovitost výplně je menší nebo rovna nule.\r\n");
    EXPECT_FALSE(result.has(Quantity::TrenchLength));
}

TEST(Design, ATankWithVerticalSides) {
    Facility facility;
    facility.type = FacilityType::Tank;
    facility.txtSpecMeroIntenz = 10.0F;
    facility.txtDelkaDnaNadrz = 10.0F;
    facility.txtSirkaDnaNadrz = 5.0F;
    facility.txtHloubkaNadrz = 2.0F;
    facility.upstream_settling = true;
    const DesignResult result = design(oneRain(), facility);
    EXPECT_EQ(result.value(Quantity::TankVolume), 100.0F);
    // (1e-4 * 150 - 1e-7 * 10 * 1000) * 15 * 60 * 1.2 = 0.014 * 1080
    EXPECT_FLOAT_EQ(result.value(Quantity::StorageVolume), 15.12F);
    // 50 m2 * 1e-4 / 2 = 0.0025 m3/s against 0.001 m3/s
    EXPECT_THAT(told(result),
                ElementsAre(VerdictId::TankVolumeSufficient, VerdictId::TankInfiltrationProven));
}

TEST(Design, ARingsWallIsStoredWithTwoDecimals) {
    Facility facility;
    facility.type = FacilityType::Shaft;
    facility.catalogue_row = 3;  // 1.2 m, wall 0.135 m: its box shows 0.14
    facility.txtNezamrzHlPritok = 1.0F;
    facility.txtVyskaFiltrVrstvy = 0.5F;
    const DesignResult result = design(oneRain(), facility);
    EXPECT_EQ(result.numbers.txtTloustkaSteny, 0.14F);
    EXPECT_FLOAT_EQ(result.value(Quantity::ShaftOuterDiameter), 1.48F);
}

}  // namespace
}  // namespace mero::design
