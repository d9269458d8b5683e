// SPDX-License-Identifier: MIT
/// The design rain that the designs find: the critical row overwrites the picked one.
/// Ties, tables that give nothing, and rows that only some searches take.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::IsEmpty;

/// The same depth of rain: on an impervious soil the same storage, whatever the facility.
const std::vector<TypedRain> kEqualRains{{"10", "300"}, {"20", "150"}};
/// A duration that is not positive, with the most rain.
const std::vector<TypedRain> kOddDurations{{"-1000", "900"}, {"0", "900"},  {"15", "160"},
                                           {"20", "130"},    {"30", "100"}, {"45", "75"},
                                           {"60", "60"},     {"90", "45"},  {"120", "36"}};
/// A negative duration without rain: soaking away backwards fills every swale and tank.
const std::vector<TypedRain> kBackwards{{"-10000", "0"}, {"10", "200"}, {"15", "160"},
                                        {"20", "130"},   {"30", "100"}, {"45", "75"},
                                        {"60", "60"},    {"90", "45"},  {"120", "36"}};

class DesignRain : public DesignTest {
  protected:
    void calculateCombined() {
        project.choose(FacilityType::SwaleTrench);
        project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-4");
        trenchSection(FacilityType::SwaleTrench);
    }
    void calculateTrench() {
        project.choose(FacilityType::Trench);
        trenchSection(FacilityType::Trench);
    }
    void calculateShaft() {
        project.choose(FacilityType::Shaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, "1");
        project.set(window.txtTloustkaSteny, "0.1");
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, "0.5");
        project.calculate();
    }
    void calculateTank() {
        project.chooseTank();
        project.set(window.txtSpecMeroIntenz, "1");
        project.set(window.txtDelkaDnaNadrz, "20");
        project.set(window.txtSirkaDnaNadrz, "10");
        project.set(window.txtHloubkaNadrz, "1");
        project.calculate();
    }

  private:
    void trenchSection(FacilityType type) {
        project.set(window.txtSirkaRyhy[type], "1");
        project.set(window.txtVyskaRyhy[type], "1.5");
        project.calculate();
    }
};

TEST_F(DesignRain, EarlierOfEqualRowsWinsInTheSwale) {
    project.area("500");
    project.rains(kEqualRains, 2);
    project.choose(FacilityType::Swale);
    EXPECT_EQ(project.pickedRain(), "10 min, 300 l/s.ha");
}

TEST_F(DesignRain, EarlierOfEqualRowsWinsInTheTrench) {
    project.area("500");
    project.rains(kEqualRains, 2);
    calculateTrench();
    EXPECT_EQ(project.pickedRain(), "10 min, 300 l/s.ha");
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "20.6");
}

TEST_F(DesignRain, EarlierOfEqualRowsWinsInTheShaft) {
    project.area("70");
    project.rains(kEqualRains, 2);
    calculateShaft();
    EXPECT_EQ(project.pickedRain(), "10 min, 300 l/s.ha");
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Shaft].text(), "1.93");
    EXPECT_EQ(window.txtSoucFiltrPruleh[FacilityType::Shaft].text(), "0.0E+00");
}

TEST_F(DesignRain, MainWindowStillShowsTheRainThatWasPicked) {
    project.site("500", "1e-5", kStorm, 3);
    project.choose(FacilityType::Swale);
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
    EXPECT_EQ(window.txtSelIntDeste.text(), "160");
    EXPECT_EQ(window.txtSelDTrvDeste.text(), "15");
    // The surface infiltration that is chosen next takes the rain of the swale: 500 / (1e2/72 - 1).
    project.choose(FacilityType::Surface);
    EXPECT_EQ(window.txtVsakPlocha[FacilityType::Surface].text(), "1 285.7");
}

TEST_F(DesignRain, NothingPositiveLeavesThePickedRain) {
    project.area("500");
    project.filtration("10");
    project.rains(kStorm, 3);
    project.choose(FacilityType::Swale);
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
    calculateShaft();
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
}

TEST_F(DesignRain, BothSearchesOfTheCombinedObjectPick) {
    // The volume picks the shower of 300 l/s.ha, then the trench the long rain, because the swale's soil
    // keeps up with it and all of it goes down.
    project.site("500", "1e-6", {{"5", "300"}, {"120", "40"}});
    project.choose(FacilityType::SwaleTrench);
    project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-4");
    project.calculate();
    EXPECT_EQ(project.messages().size(), 1U);
    EXPECT_EQ(project.pickedRain(), "0 min, 0 l/s.ha");
    calculateCombined();
    EXPECT_EQ(project.pickedRain(), "120 min, 40 l/s.ha");
    EXPECT_EQ(window.txtObjAkum[FacilityType::SwaleTrench].text(), "5.0");
}

TEST_F(DesignRain, VolumeSearchesTakeNegativeDurations) {
    // (0 - 50 m2 x 1e-5 m/s / 2) x -10 000 min x 60 x 1.2 = 180 m3
    project.site("500", "1e-5", kBackwards);
    project.choose(FacilityType::Swale);
    EXPECT_EQ(project.pickedRain(), "-10000 min, 0 l/s.ha");
    EXPECT_EQ(window.txtObjAkum[FacilityType::Swale].text(), "180.0");
    // (0 - 1e-7 x 500) x the same = 36 m3
    calculateTank();
    EXPECT_EQ(project.pickedRain(), "-10000 min, 0 l/s.ha");
    EXPECT_EQ(window.txtObjAkum[FacilityType::Tank].text(), "36.00");
}

TEST_F(DesignRain, LengthAndLevelSearchesSkipThem) {
    project.site("500", "1e-5", kOddDurations);
    calculateTrench();
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "25.9");
    project.site("70", "1e-4", kOddDurations);
    calculateShaft();
    EXPECT_EQ(project.pickedRain(), "30 min, 100 l/s.ha");
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Shaft].text(), "1.41");
    EXPECT_THAT(project.errors(), IsEmpty());
}

TEST_F(DesignRain, VolumeSearchTakesADurationOfZeroWithoutEffect) {
    project.site("500", "1e-5", {{"0", "900"}});
    project.choose(FacilityType::Swale);
    EXPECT_EQ(window.txtObjAkum[FacilityType::Swale].text(), "0.0");
    EXPECT_EQ(project.pickedRain(), "0 min, 0 l/s.ha");
}

}  // namespace
}  // namespace mero::forms::test
