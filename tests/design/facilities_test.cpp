// SPDX-License-Identifier: MIT
/// Whole designs of the storing facilities, worked out by hand, with their verdicts and stops.
/// One rain of 100 l/(s.ha) for 60 min, safety factor 1 unless said otherwise.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "design/design.h"
#include "design/messages.h"

namespace mero::design {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

Site hourOfRain() {
    Site site;
    site.has_areas = true;
    site.reduced_area_m2 = 1000.0F;
    site.rains[6] = {.duration_min = 60.0F, .intensity_l_s_ha = 100.0F};
    site.picked_row = 6;
    site.filtration_m_s = 1e-5F;
    return site;
}

Facility facilityOf(FacilityType type) {
    Facility facility;
    facility.type = type;
    facility.txtSoucBezp = 1.0F;
    facility.txtSoucFiltrPruleh = 1e-5F;
    facility.txtPorVyplne = 0.5F;
    facility.txtSirkaRyhy = 1.0F;
    facility.txtVyskaRyhy = 2.0F;
    facility.inner_diameter_m = 2.0F;
    facility.txtTloustkaSteny = 0.25F;
    facility.txtNezamrzHlPritok = 1.0F;
    facility.txtVyskaFiltrVrstvy = 0.5F;
    facility.txtSpecMeroIntenz = 10.0F;
    facility.txtDelkaDnaNadrz = 10.0F;
    facility.txtSirkaDnaNadrz = 5.0F;
    facility.txtHloubkaNadrz = 1.0F;
    return facility;
}

std::vector<VerdictId> told(const DesignResult& result) {
    std::vector<VerdictId> ids;
    for (const Verdict& verdict : result.verdicts.all()) {
        ids.push_back(verdict.id);
    }
    return ids;
}

TEST(SwaleDesign, StoresWhatDoesNotSoakAway) {
    const DesignResult result = design(hourOfRain(), facilityOf(FacilityType::Swale));
    EXPECT_EQ(result.value(Quantity::InfiltrationArea), 100.0F);
    // (1100 * 1e-7 * 100 - 100 * 1e-5 / 2) * 3600 = (0.011 - 0.0005) * 3600
    EXPECT_FLOAT_EQ(result.value(Quantity::StorageVolume), 37.8F);
    EXPECT_FLOAT_EQ(result.value(Quantity::WaterDepth), 0.378F);
    // 2 * 0.378 / 1e-5 / 3600
    EXPECT_FLOAT_EQ(result.value(Quantity::EmptyingTime), 21.0F);
    EXPECT_THAT(told(result), IsEmpty());
}

TEST(SwaleDesign, TheSecondSoilTakesAFifthOfTheArea) {
    Facility facility = facilityOf(FacilityType::Swale);
    facility.soil_option = 1;
    EXPECT_EQ(design(hourOfRain(), facility).value(Quantity::InfiltrationArea), 200.0F);
}

TEST(SwaleDesign, ARainPickedByAnEarlierCalculationStays) {
    // With the opening safety factor the rain is critical; the factor 0 that is typed then finds none.
    Site site = hourOfRain();
    site.picked_row = -1;
    Facility facility = facilityOf(FacilityType::Swale);
    facility.txtSoucBezp = 0.0F;
    const DesignResult result = design(site, facility);
    EXPECT_EQ(result.value(Quantity::StorageVolume), 0.0F);
    EXPECT_EQ(result.pickedRain().intensity_l_s_ha, 100.0F);
}

TEST(SwaleDesign, WithoutFiltrationThereIsNoEmptyingTime) {
    Site site = hourOfRain();
    site.filtration_m_s = 0.0F;
    const DesignResult result = design(site, facilityOf(FacilityType::Swale));
    EXPECT_THAT(told(result), ElementsAre(VerdictId::FiltrationMissing));
    EXPECT_TRUE(result.has(Quantity::WaterDepth));
    EXPECT_FALSE(result.has(Quantity::EmptyingTime));
}

TEST(SwaleTrenchDesign, TheTrenchTakesWhatTheSwaleLetsThrough) {
    const DesignResult result = design(hourOfRain(), facilityOf(FacilityType::SwaleTrench));
    EXPECT_FLOAT_EQ(result.value(Quantity::StorageVolume), 37.8F);
    // (0.011 - 37.8 / 3600) / (1 * 2 * 0.5 / 3600 + 2 * 1e-5 / 2) = 0.0005 / 0.00028777...
    EXPECT_NEAR(result.value(Quantity::TrenchLength), 1.7374517F, 1e-4F);
    EXPECT_THAT(told(result), ElementsAre(VerdictId::SwaleTrenchAreaSufficient));
    EXPECT_EQ(messages(result.verdicts.all())[0].text,
              "Navržená vsakovací plocha je dostatečná ( 1.74 < 100.00 ).");
}

TEST(SwaleTrenchDesign, AnOverflowWithoutOutflowIsUntickedAgain) {
    Facility facility = facilityOf(FacilityType::SwaleTrench);
    facility.overflow = {{.txtPocetPotrubi = 1.0F, .txtPrumTroubVnej = 300.0F, .txtPrumTroubVnit = 250.0F},
                         true};
    EXPECT_FALSE(design(hourOfRain(), facility).pipes);
    facility.overflow.txtSpecDrenOdtok = 1.0F;
    const DesignResult result = design(hourOfRain(), facility);
    EXPECT_TRUE(result.pipes);
    EXPECT_FLOAT_EQ(result.value(Quantity::ThrottledOutflow), 0.0001F);  // 0.1 ha at 1 l/(s.ha)
}

TEST(SwaleTrenchDesign, WithoutAreaTheMessageSpeaksOfIt) {
    Site site = hourOfRain();
    site.reduced_area_m2 = 0.0F;
    const DesignResult result = design(site, facilityOf(FacilityType::SwaleTrench));
    EXPECT_THAT(told(result), ElementsAre(VerdictId::DrainedAreaMissing, VerdictId::InfiltrationAreaMissing));
    EXPECT_TRUE(messages(result.verdicts.all())[1].titled_error);
}

TEST(TrenchDesign, LengthVolumeAndDrain) {
    Facility facility = facilityOf(FacilityType::Trench);
    const DesignResult plain = design(hourOfRain(), facility);
    // 0.01 / (1 / 3600 + 2 * 1e-5 / 2) = 0.01 / 0.000287777...
    EXPECT_NEAR(plain.value(Quantity::TrenchLength), 34.749035F, 1e-4F);
    EXPECT_EQ(plain.value(Quantity::InfiltrationArea), 69.5F);
    EXPECT_EQ(plain.value(Quantity::DrainOutflow), 0.0F);
    EXPECT_THAT(told(plain), IsEmpty());

    facility.drain = {{.txtPocetPotrubi = 2.0F, .txtPrumTroubVnej = 160.0F, .txtPrumTroubVnit = 145.0F},
                      true};
    facility.drain.txtVystupPlocha = 50.0F;
    facility.drain.txtVystupRychlost = 0.1F;
    const DesignResult drained = design(hourOfRain(), facility);
    EXPECT_TRUE(drained.pipes);
    EXPECT_THAT(told(drained), ElementsAre(VerdictId::DrainOutflowMet));  // about 35 against 10 l/s

    facility.drain.txtVystupRychlost = 0.01F;
    EXPECT_THAT(told(design(hourOfRain(), facility)), ElementsAre(VerdictId::DrainOutflowNotMet));
}

TEST(TrenchDesign, ADrainWithoutDiameterIsUntickedAndNotJudged) {
    Facility facility = facilityOf(FacilityType::Trench);
    facility.drain = {{.txtPocetPotrubi = 1.0F, .txtPrumTroubVnej = 160.0F}, true};
    const DesignResult result = design(hourOfRain(), facility);
    EXPECT_FALSE(result.pipes);
    EXPECT_EQ(result.value(Quantity::StorageCoefficient), 0.5F);
    EXPECT_THAT(told(result), IsEmpty());
}

TEST(ShaftDesign, AnOuterDiameterThatIsNotLargerIsRefusedAlone) {
    Facility facility = facilityOf(FacilityType::Shaft);
    facility.txtSoucBezp = 1.2F;
    facility.txtTloustkaSteny = 0.0F;
    const DesignResult result = design(hourOfRain(), facility);
    EXPECT_THAT(told(result), ElementsAre(VerdictId::ShaftOuterDiameterTooSmall));
    EXPECT_FALSE(result.has(Quantity::WaterDepth));
}

TEST(ShaftDesign, TheBottomMustStayAboveTheRequiredDepth) {
    Facility facility = facilityOf(FacilityType::Shaft);
    facility.txtVyskaFiltrVrstvy = 1.25F;  // 1.25 + 0.5 > 1.5
    const DesignResult result = design(hourOfRain(), facility);
    EXPECT_THAT(told(result), ElementsAre(VerdictId::ShaftBottomTooClose));
    EXPECT_FALSE(result.completed);
    facility.txtVyskaFiltrVrstvy = 0.5F;
    EXPECT_TRUE(design(hourOfRain(), facility).completed);
}

TEST(ShaftDesign, HighGroundwaterStopsBeforeAnythingElse) {
    Site site = hourOfRain();
    site.groundwater_depth_m = 1.0F;
    Facility facility = facilityOf(FacilityType::Shaft);
    facility.txtVyskaFiltrVrstvy = 1.25F;
    EXPECT_THAT(told(design(site, facility)), ElementsAre(VerdictId::ShaftGroundwaterTooHigh));
}

TEST(ShaftDesign, ASandLayerCountsOnlyInItsVariant) {
    Facility facility = facilityOf(FacilityType::Shaft);
    facility.txtVyskaPiskVrstvy = 0.25F;
    const float without = design(hourOfRain(), facility).value(Quantity::ShaftDepth);
    facility.sand_layer = true;
    EXPECT_FLOAT_EQ(design(hourOfRain(), facility).value(Quantity::ShaftDepth), without + 0.25F);
    facility.txtVyskaPiskVrstvy = 0.0F;
    EXPECT_THAT(told(design(hourOfRain(), facility)), Contains(VerdictId::SandLayerNotPositive));
}

TEST(ShaftDesign, SidesOfDifferentSignsAreRuntimeErrorsOfTheirBoxes) {
    Facility facility = facilityOf(FacilityType::Shaft);
    facility.shape = ShaftShape::Rectangular;
    facility.inner_width_m = 2.0F;
    facility.txtPrumerSachtyVnej = -3.0F;
    const std::vector<VerdictId> verdicts = told(design(hourOfRain(), facility));
    // The length box, the wall box, and then the balance with diameters of 0 while the factor is typed.
    ASSERT_GE(verdicts.size(), 3U);
    EXPECT_EQ(verdicts[0], VerdictId::ErrorInvalidCall);
    EXPECT_EQ(verdicts[1], VerdictId::ErrorInvalidCall);
    EXPECT_EQ(verdicts[2], VerdictId::ErrorDivisionByZero);
}

TEST(TankDesign, AVolumeThatIsTooSmallEndsTheDesign) {
    Facility facility = facilityOf(FacilityType::Tank);
    facility.txtHloubkaNadrz = 0.5F;  // 25 m3 against (0.01 - 0.001) * 3600 = 32.4 m3
    const DesignResult result = design(hourOfRain(), facility);
    EXPECT_FLOAT_EQ(result.value(Quantity::StorageVolume), 32.4F);
    EXPECT_THAT(told(result), ElementsAre(VerdictId::TankVolumeTooSmall));
    EXPECT_FALSE(result.completed);
}

TEST(TankDesign, WithoutSettlingAFifthOfTheCoefficientCounts) {
    Site site = hourOfRain();
    site.filtration_m_s = 5e-5F;
    Facility facility = facilityOf(FacilityType::Tank);
    // 50 m2 * 1e-5 / 2 = 0.00025 m3/s against 0.001 m3/s; with settling 0.00125 m3/s.
    EXPECT_THAT(told(design(site, facility)), Contains(VerdictId::TankInfiltrationExceeded));
    facility.upstream_settling = true;
    EXPECT_THAT(told(design(site, facility)), Contains(VerdictId::TankInfiltrationProven));
}

TEST(TankDesign, ASlopeBelowZeroIsRefusedWithAllOtherMistakes) {
    Facility facility = facilityOf(FacilityType::Tank);
    facility.txtSklonSvahuNadrz = -0.5F;
    facility.txtSirkaDnaNadrz = 0.0F;
    EXPECT_THAT(told(design(hourOfRain(), facility)),
                ElementsAre(VerdictId::BottomWidthNotPositive, VerdictId::SideSlopeNegative));
}

}  // namespace
}  // namespace mero::design
