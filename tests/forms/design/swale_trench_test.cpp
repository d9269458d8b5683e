// SPDX-License-Identifier: MIT
/// Combined object of swale and trench: area while the inputs change, the rest by the calculate command.
/// Numbers: see expected.py.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Combined : public DesignTest {
  protected:
    void trench(const std::string& swale_coefficient, const std::string& width, const std::string& height) {
        project.choose(FacilityType::SwaleTrench);
        project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], swale_coefficient);
        project.set(window.txtSirkaRyhy[FacilityType::SwaleTrench], width);
        project.set(window.txtVyskaRyhy[FacilityType::SwaleTrench], height);
    }
    /// Area, volume, trench length, swale depth and width, emptying time as shown.
    std::vector<std::string> shown() {
        return {window.txtVsakPlocha[FacilityType::SwaleTrench].text(),
                window.txtObjAkum[FacilityType::SwaleTrench].text(),
                window.txtDelkaRyhy[FacilityType::SwaleTrench].text(),
                window.txtHloubkaPrulehu[FacilityType::SwaleTrench].text(),
                window.txtSirkaPrulehu[FacilityType::SwaleTrench].text(),
                window.txtDobaPrazdneni[FacilityType::SwaleTrench].text()};
    }
};

TEST_F(Combined, SufficientArea) {
    project.site("500", "1e-5");
    trench("1e-4", "0.5", "0.5");
    EXPECT_THAT(shown(), ElementsAre("50.0", "", "", "", "", ""));
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("50.0", "6.8", "85.9", "0.16", "0.50", "0.9"));
    EXPECT_THAT(project.messages(),
                ElementsAre(information("Navržená vsakovací plocha je dostatečná ( 42.97 < 50.00 ).")));
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
}

TEST_F(Combined, InsufficientArea) {
    project.site("500", "1e-5");
    trench("1e-4", "2", "0.3");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("50.0", "6.8", "34.0", "0.10", "2.00", "0.6"));
    EXPECT_THAT(project.messages(),
                ElementsAre(exclamation("Navržená vsakovací plocha je nedostatečná ( 68.03 > 50.00 ).")));
}

TEST_F(Combined, EqualAreaIsInsufficient) {
    // The swale's soil takes every rain, so the trench has to take it all: 220 m2 x 0.05 mm/s x 10 min in
    // pores of 0.33 m2 per metre make 20 m.
    project.area("200");
    project.rains({{"10", "500"}});
    trench("1", "1", "1");
    project.set(window.txtPorVyplne[FacilityType::SwaleTrench], "0.33");
    project.set(window.txtSoucBezp[FacilityType::SwaleTrench], "1");
    project.calculate();
    EXPECT_EQ(values.txtDelkaRyhy, 20.0F);
    EXPECT_THAT(project.messages(),
                ElementsAre(exclamation("Navržená vsakovací plocha je nedostatečná ( 20.00 > 20.00 ).")));
    EXPECT_THAT(shown(), ElementsAre("20.0", "0.0", "20.0", "0.00", "1.00", "0.0"));
}

TEST_F(Combined, SiltTakesAFifth) {
    project.site("500", "1e-5");
    trench("5e-5", "1", "1");
    project.click(window.optSelTypPudy3[1]);
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("100.0", "7.7", "26.5", "0.29", "1.00", "3.2"));
    EXPECT_THAT(project.messages(),
                ElementsAre(information("Navržená vsakovací plocha je dostatečná ( 26.51 < 100.00 ).")));
}

TEST_F(Combined, CalculateTakesTheAreaAsItStands) {
    // An area typed by the user stays: the command designs, it does not size the area again.
    project.site("500", "1e-5");
    trench("1e-4", "0.5", "0.5");
    project.set(window.txtVsakPlocha[FacilityType::SwaleTrench], "77");
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("77", "5.8", "101.2", "0.11", "0.50", "0.6"));
    EXPECT_THAT(project.messages(),
                ElementsAre(information("Navržená vsakovací plocha je dostatečná ( 50.60 < 77.00 ).")));
}

TEST_F(Combined, WithoutDrainedAreaItSaysSo) {
    project.filtration("1e-5");
    project.rains(kStorm);
    trench("1e-4", "0.5", "0.5");
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(critical("Není zadána odvodňovaná plocha.", "Chyba")));
    // The design goes on: nothing to store, no trench, so no verdict on the area.
    EXPECT_THAT(shown(), ElementsAre("", "0.0", "0.0", "", "", "0.0"));
}

TEST_F(Combined, NegativeAreaIsToldBesideTheVerdict) {
    // Only a soil that gives water back has a trench then; both boxes show, one after the other.
    project.site("500", "-0.1");
    trench("1e-4", "0.5", "0.5");
    project.set(window.txtVsakPlocha[FacilityType::SwaleTrench], "-1");
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Není zadána odvodňovaná plocha.", "Chyba"),
                            exclamation("Navržená vsakovací plocha je nedostatečná ( 0.39 > -1.00 ).")));
}

TEST_F(Combined, SafetyFactorEmptiesTheResults) {
    project.site("500", "1e-5");
    trench("1e-4", "0.5", "0.5");
    project.calculate();
    project.set(window.txtSoucBezp[FacilityType::SwaleTrench], "1.3");
    EXPECT_THAT(shown(), ElementsAre("50.0", "", "", "", "", ""));
    project.calculate();
    project.click(window.optSelTypPudy3[1]);
    EXPECT_THAT(shown(), ElementsAre("100.0", "", "", "", "", ""));
}

TEST_F(Combined, WithoutTrenchTheLastSwaleDepthCounts) {
    project.site("500", "1e-5");
    trench("1e-4", "0.5", "0.5");
    project.calculate();
    const float depth = values.txtHloubkaPrulehu;
    project.messages();
    // No rain is left, so there is no volume and no trench; the emptying time is that of the depth in store.
    project.rains({});
    project.choose(FacilityType::SwaleTrench);
    project.calculate();
    EXPECT_THAT(shown(), ElementsAre("50.0", "0.0", "0.0", "", "", "0.9"));
    EXPECT_EQ(values.txtHloubkaPrulehu, depth);
    EXPECT_THAT(project.messages(), IsEmpty());
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
}

}  // namespace
}  // namespace mero::forms::test
