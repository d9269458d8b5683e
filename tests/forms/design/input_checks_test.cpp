// SPDX-License-Identifier: MIT
/// The checks of the calculate command: every text, their order, one box for all.
/// Nothing is calculated while one fails; what was shown stays.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class InputChecks : public DesignTest {
  protected:
    /// A round shaft that passes all checks.
    void shaft() {
        project.choose(FacilityType::Shaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, "1");
        project.set(window.txtTloustkaSteny, "0.1");
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, "0.5");
    }
    void tank() {
        project.chooseTank();
        project.set(window.txtSpecMeroIntenz, "10");
        project.set(window.txtDelkaDnaNadrz, "20");
        project.set(window.txtSirkaDnaNadrz, "10");
        project.set(window.txtHloubkaNadrz, "1");
    }
};

TEST_F(InputChecks, CombinedTellsAllFive) {
    project.choose(FacilityType::SwaleTrench);
    project.set(window.txtSoucBezp[FacilityType::SwaleTrench], "0");
    project.set(window.txtPorVyplne[FacilityType::SwaleTrench], "-0.1");
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Součinitel filtrace průlehu je menší nebo rovna nule.\r\n"
                                     "Součinitel bezpečnosti je menší nebo roven nule.\r\n"
                                     "Pórovitost výplně je menší nebo rovna nule.\r\n"
                                     "Výška rýhy je menší nebo rovna nule.\r\n"
                                     "Šířka rýhy je menší nebo rovna nule.\r\n")));
    EXPECT_EQ(window.txtObjAkum[FacilityType::SwaleTrench].text(), "");
}

TEST_F(InputChecks, CombinedTellsOneAlone) {
    project.choose(FacilityType::SwaleTrench);
    project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-4");
    project.set(window.txtVyskaRyhy[FacilityType::SwaleTrench], "1");
    project.set(window.txtSirkaRyhy[FacilityType::SwaleTrench], "-1");
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(critical("Šířka rýhy je menší nebo rovna nule.\r\n")));
}

TEST_F(InputChecks, TrenchTellsHeightThenPorosity) {
    project.choose(FacilityType::Trench);
    project.set(window.txtVyskaRyhy[FacilityType::Trench], "0");
    project.set(window.txtSirkaRyhy[FacilityType::Trench], "1");
    project.set(window.txtPorVyplne[FacilityType::Trench], "-1");
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(critical("Výška rýhy je menší nebo rovna nule.\r\n"
                                                         "Pórovitost výplně je menší nebo rovna nule.\r\n")));
    project.clear(window.txtSirkaRyhy[FacilityType::Trench]);
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(critical("Výška rýhy je menší nebo rovna nule.\r\n"
                                                         "Šířka rýhy je menší nebo rovna nule.\r\n"
                                                         "Pórovitost výplně je menší nebo rovna nule.\r\n")));
}

TEST_F(InputChecks, TrenchDoesNotCheckTheSafetyFactor) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Trench);
    project.set(window.txtVyskaRyhy[FacilityType::Trench], "1.5");
    project.set(window.txtSirkaRyhy[FacilityType::Trench], "1");
    project.set(window.txtSoucBezp[FacilityType::Trench], "-1");
    project.calculate();
    EXPECT_THAT(project.messages(), IsEmpty());
    EXPECT_THAT(project.errors(), IsEmpty());
}

TEST_F(InputChecks, ShaftTellsAllSeven) {
    project.choose(FacilityType::Shaft);
    project.click(window.optSelTypPudy5[1]);
    project.clear(window.txtSoucBezp[FacilityType::Shaft]);
    project.clear(window.txtMinPrusakDraha);
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Součinitel bezpečnosti je menší nebo roven nule.\r\n"
                                     "Nezámrzná hloubka přítoku je menší nebo rovna nule.\r\n"
                                     "Výška filtrační vrstvy je menší nebo rovna nule.\r\n"
                                     "Vnitřní průměr šachty je menší nebo rovna nule.\r\n"
                                     "Vnější průměr šachty je menší nebo rovna nule.\r\n"
                                     "Minimální průsaková dráha je menší nebo rovna nule.\r\n"
                                     "Výška pískové vrstvy je menší nebo rovna nule.\r\n")));
}

TEST_F(InputChecks, SandLayerIsCheckedOnTypeBOnly) {
    project.site("70", "1e-4");
    shaft();
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(information("Potřebná propustnost filtru je dostačující.")));
    project.click(window.optSelTypPudy5[1]);
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Výška pískové vrstvy je menší nebo rovna nule.\r\n")));
}

TEST_F(InputChecks, ShaftWithoutWallIsToldAlone) {
    project.site("70", "1e-4");
    shaft();
    project.clear(window.txtTloustkaSteny);
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Vnější průměr šachty je menší než vnitřní průměr.")));
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Shaft].text(), "");
    EXPECT_EQ(window.txtObjAkum[FacilityType::Shaft].text(), "");

    project.set(window.txtTloustkaSteny, "-0.1");
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Vnější průměr šachty je menší než vnitřní průměr.")));
}

TEST_F(InputChecks, DiametersAreComparedAfterAllElsePassed) {
    project.site("70", "1e-4");
    shaft();
    project.clear(window.txtTloustkaSteny);
    project.clear(window.txtNezamrzHlPritok);
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Nezámrzná hloubka přítoku je menší nebo rovna nule.\r\n")));
}

TEST_F(InputChecks, TankTellsAllFive) {
    project.site("5000", "1e-4");
    project.chooseTank();
    project.set(window.txtDelkaDnaNadrz, "-1");
    project.set(window.txtSklonSvahuNadrz, "-0.1");
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(critical("Specifická vsakovací intenzita je menší nebo rovna nule.\r\n"
                                     "Délka dna nádrže je menší nebo rovna nule.\r\n"
                                     "Šířka dna nádrže je menší nebo rovna nule.\r\n"
                                     "Hloubka nádrže je menší nebo rovna nule.\r\n"
                                     "Sklon svahů nádrže je menší než nula.\r\n")));
}

TEST_F(InputChecks, VerticalSidesOfATankPass) {
    project.site("5000", "1e-4");
    tank();
    project.set(window.txtSklonSvahuNadrz, "-0.1");
    project.calculate();
    EXPECT_THAT(project.messages(), ElementsAre(critical("Sklon svahů nádrže je menší než nula.\r\n")));
    project.set(window.txtSklonSvahuNadrz, "0");
    project.calculate();
    EXPECT_THAT(project.messages(),
                ElementsAre(information("Objem nádrže je dostačující."),
                            exclamation("Vsakovací tok přesahuje průměrný vsakovací tok.")));
}

TEST_F(InputChecks, ResultsStayWhenACheckFails) {
    project.site("5000", "1e-4");
    tank();
    project.calculate();
    project.messages();
    const std::string required = window.txtObjAkum[FacilityType::Tank].text();
    ASSERT_EQ(required, "113.40");
    const std::string picked = project.pickedRain();
    project.set(window.txtHloubkaNadrz, "0");
    project.calculate();
    EXPECT_EQ(project.messages().size(), 1U);
    EXPECT_EQ(window.txtObjAkum[FacilityType::Tank].text(), required);
    EXPECT_EQ(window.txtVypObjNadrz.text(), "200.00");
    EXPECT_EQ(project.pickedRain(), picked);
}

TEST_F(InputChecks, TypesComputedWhileTypingHaveNothingToPress) {
    project.site("500", "1e-5", kStorm, 3);
    project.choose(FacilityType::Surface);
    EXPECT_FALSE(window.cmdCalcul[FacilityType::Surface].onScreen());
    project.choose(FacilityType::Swale);
    EXPECT_FALSE(window.cmdCalcul[FacilityType::Swale].onScreen());
    // The command does nothing for them, whoever calls it.
    window.cmdCalcul_Click(2);
    window.cmdCalcul_Click(0);
    window.cmdCalcul_Click(7);
    EXPECT_THAT(project.messages(), IsEmpty());
}

}  // namespace
}  // namespace mero::forms::test
