// SPDX-License-Identifier: MIT
/// Trench with and without drain: length, volume, then the infiltration area, then the drain's verdict.
/// Numbers: see expected.py.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Trench : public DesignTest {
  protected:
    void trench(const std::string& width, const std::string& height) {
        project.choose(FacilityType::Trench);
        project.set(window.txtSirkaRyhy[FacilityType::Trench], width);
        project.set(window.txtVyskaRyhy[FacilityType::Trench], height);
    }
    void drain(const std::string& inner_mm, const std::string& outer_mm, const std::string& count,
               const std::string& openings, const std::string& velocity) {
        project.click(window.chkSelPretok[FacilityType::Trench]);
        project.set(window.txtPrumTroubVnit[FacilityType::Trench], inner_mm);
        project.set(window.txtPrumTroubVnej[FacilityType::Trench], outer_mm);
        project.set(window.txtPocetPotrubi[FacilityType::Trench], count);
        project.set(window.txtVystupPlocha[FacilityType::Trench], openings);
        project.set(window.txtVystupRychlost[FacilityType::Trench], velocity);
        project.click(window.cmdOK[FacilityType::Trench]);
    }
    /// Length, volume, area as shown.
    std::vector<std::string> shown() {
        return {window.txtDelkaRyhy[FacilityType::Trench].text(),
                window.txtObjAkum[FacilityType::Trench].text(),
                window.txtVsakPlocha[FacilityType::Trench].text()};
    }
};

TEST_F(Trench, IsDesignedWithoutAVerdict) {
    project.site("500", "1e-5");
    trench("1", "1.5");
    EXPECT_THAT(shown(), ElementsAre("", "", ""));
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("25.9", "13.6", "45.3"));
    EXPECT_EQ(values.txtVsakPlocha, 45.3F);
    EXPECT_EQ(values.s_RR, 0.35F);
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(Trench, PorosityFieldIsEmptyButTheDefaultHolds) {
    project.site("500", "1e-5");
    trench("1", "1.5");
    EXPECT_EQ(window.txtPorVyplne[FacilityType::Trench].text(), "");
    project.set(window.txtPorVyplne[FacilityType::Trench], "0.3");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("29.6", "13.3", "51.8"));
    // The page of the combined object still shows what it showed, but there is one porosity.
    EXPECT_EQ(window.txtPorVyplne[FacilityType::SwaleTrench].text(), "0.35");
    EXPECT_EQ(values.txtPorVyplne, 0.3F);
}

TEST_F(Trench, SafetyFactorRefreshesTheAreaOnly) {
    project.site("500", "1e-5");
    trench("1", "1.5");
    project.calculate();
    project.set(window.txtSirkaRyhy[FacilityType::Trench], "2");
    EXPECT_THAT(shown(), ElementsAre("25.9", "13.6", "45.3"));
    // (1.5 / 2 + 2) x 25.8941 = 71.2
    project.set(window.txtSoucBezp[FacilityType::Trench], "2");
    EXPECT_THAT(shown(), ElementsAre("25.9", "13.6", "71.2"));
}

TEST_F(Trench, DrainThatLetsOutMoreThanFlowsIn) {
    project.site("500", "1e-5");
    trench("1", "1.5");
    drain("200", "220", "2", "50", "0.5");
    project.calculate();
    EXPECT_EQ(values.s_RR, 0.37414837F);
    EXPECT_THAT(shown(), ElementsAre("24.4", "13.7", "42.7"));
    EXPECT_THAT(project.messages(),
                ElementsAre(information("Podmínka výstupního odtoku je splněna. ( 122.11 > 1.80 )")));
}

TEST_F(Trench, DrainThatLetsOutLessThanFlowsIn) {
    project.site("500", "1e-5");
    trench("1", "1.5");
    drain("200", "220", "2", "0.5", "0.5");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("24.4", "13.7", "42.7"));
    EXPECT_THAT(project.messages(),
                ElementsAre(exclamation("Není splněna podmínka výstupního odtoku. ( 1.22 < 1.80 )")));
}

TEST_F(Trench, DrainThatLetsOutExactlyWhatFlowsIn) {
    // Pores of 0.36 m2 per metre fill in 10 min at 0.6 l/s per metre; 12 cm2 at 0.5 m/s let out as much.
    project.area("500");
    project.rains({{"10", "160"}});
    trench("1", "1");
    project.set(window.txtPorVyplne[FacilityType::Trench], "0.36");
    project.set(window.txtSoucBezp[FacilityType::Trench], "1");
    // Unconfirmed, so that the coefficient of the design before stays: the porosity.
    project.calculate();
    project.click(window.chkSelPretok[FacilityType::Trench]);
    project.set(window.txtVystupPlocha[FacilityType::Trench], "12");
    project.set(window.txtVystupRychlost[FacilityType::Trench], "0.5");
    project.calculate();
    EXPECT_EQ(values.drain_outflow_l_s, values.drain_inflow_l_s);
    EXPECT_THAT(shown(), ElementsAre("13.3", "4.8", "20.0"));
    EXPECT_THAT(project.messages(),
                ElementsAre(information("Podmínka výstupního odtoku je splněna. ( 8.00 > 8.00 )")));
}

TEST_F(Trench, WithoutRainThereIsNoTrench) {
    project.site("500", "1e-5", {{"5", "0"}});
    trench("1", "1.5");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("0.0", "0.0", "0.0"));
}

TEST_F(Trench, WithoutCriticalRainTheVolumeIsThatOfThePickedRain) {
    // A soil that gives water back makes every length negative. Inflow 1e-7 x 500 x 160 = 0.008 m3/s for
    // 15 min x 1.2 is 8.64 m3, without a trench to soak it away.
    project.site("500", "-1", kStorm, 3);
    trench("1", "1.5");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("0.0", "8.6", "0.0"));
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
}

}  // namespace
}  // namespace mero::forms::test
