// SPDX-License-Identifier: MIT
/// What a change of a common input does to results that are on screen.
/// The group choice runs again: decentralised types go back to the prompt, the tank is shown again.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Rebuild : public DesignTest {
  protected:
    void expectPrompt() {
        EXPECT_EQ(window.SelectedType, FacilityType::None);
        EXPECT_EQ(window.cboSelType.position(), 0);
        EXPECT_EQ(window.cboSelType.text(), "[Vyber typ zasakování]");
        EXPECT_EQ(project.shownType(), FacilityType::None);
        EXPECT_EQ(values.txtVsakPlocha, 0.0F);
    }
    void tank() {
        project.site("5000", "1e-4");
        project.chooseTank();
        project.set(window.txtSpecMeroIntenz, "10");
        project.set(window.txtDelkaDnaNadrz, "20");
        project.set(window.txtSirkaDnaNadrz, "10");
        project.set(window.txtHloubkaNadrz, "1");
        project.calculate();
        project.messages();
    }
};

TEST_F(Rebuild, KeystrokeInTheCoefficientHidesTheSwale) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    project.tab(kTabInputs);
    project.type(window.txtSoucFiltrace, "0");
    expectPrompt();
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(Rebuild, EmptiedCoefficientLeavesTheResults) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    project.tab(kTabInputs);
    project.clear(window.txtSoucFiltrace);
    EXPECT_EQ(project.shownType(), FacilityType::Swale);
    EXPECT_EQ(window.txtObjAkum[FacilityType::Swale].text(), "14.9");
}

TEST_F(Rebuild, NewAreaHidesTheTrench) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Trench);
    project.set(window.txtSirkaRyhy[FacilityType::Trench], "1");
    project.set(window.txtVyskaRyhy[FacilityType::Trench], "1.5");
    project.calculate();
    project.area("600");
    expectPrompt();
    // Chosen again, it has no results; the dimensions are still there.
    project.choose(FacilityType::Trench);
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "");
    EXPECT_EQ(window.txtSirkaRyhy[FacilityType::Trench].text(), "1");
}

TEST_F(Rebuild, ConfirmedRainsHideTheCombinedObject) {
    project.site("500", "1e-5");
    project.choose(FacilityType::SwaleTrench);
    project.rains(kStorm);
    expectPrompt();
}

TEST_F(Rebuild, FacilityInputsLeaveTheResults) {
    project.site("70", "1e-4");
    project.choose(FacilityType::Shaft);
    project.click(window.optSelTypSachty[0]);
    project.set(window.txtPrumerSachtyVnit, "1");
    project.set(window.txtTloustkaSteny, "0.1");
    project.set(window.txtNezamrzHlPritok, "1");
    project.set(window.txtVyskaFiltrVrstvy, "0.5");
    project.calculate();
    project.set(window.txtVyskaFiltrVrstvy, "0.7");
    project.set(window.txtPrumerSachtyVnit, "2");
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Shaft].text(), "1.41");
    EXPECT_EQ(project.shownType(), FacilityType::Shaft);
    // The groundwater level is no reason either.
    project.tab(kTabInputs);
    project.set(window.txtHPV, "9");
    EXPECT_EQ(project.shownType(), FacilityType::Shaft);
}

TEST_F(Rebuild, TankIsShownAgainWithItsResults) {
    tank();
    project.area("6000");
    EXPECT_EQ(window.SelectedType, FacilityType::Tank);
    EXPECT_EQ(window.cboSelType.text(), "Vsakovací nádrže");
    EXPECT_EQ(project.shownType(), FacilityType::Tank);
    EXPECT_EQ(window.txtObjAkum[FacilityType::Tank].text(), "113.40");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(Rebuild, TankWithoutCoefficientIsGone) {
    tank();
    project.tab(kTabInputs);
    // The field is emptied and 0 stored; the group is chosen again once, and refused.
    project.set(window.txtSoucFiltrace, "x");
    EXPECT_EQ(window.txtSoucFiltrace.text(), "");
    EXPECT_EQ(values.txtSoucFiltrace, 0.0F);
    EXPECT_THAT(project.messages(), ElementsAre(critical("Zadejte součinitel filtrace podloží")));
    EXPECT_EQ(window.SelectedType, data::FacilityType::Shaft);
    EXPECT_EQ(window.cboSelType.position(), -1);
    EXPECT_EQ(project.shownType(), FacilityType::None);
}

TEST_F(Rebuild, PanelsSharePlaceWithTheFirst) {
    window.picResults[FacilityType::Surface].moveTo(120, 600);
    project.site("70", "1e-4");
    project.choose(FacilityType::Shaft);
    EXPECT_EQ(window.picResults[FacilityType::Shaft].left(), 120);
    EXPECT_EQ(window.picResults[FacilityType::Shaft].top(), 600);
}

TEST_F(Rebuild, ChoosingTheTankSelectsTheShaftVariantAgain) {
    // The choice passes through type 5 before it settles on the tank.
    project.site("5000", "1e-4");
    EXPECT_FALSE(window.optSelTypPudy5[0].selected());
    project.chooseTank();
    EXPECT_TRUE(window.optSelTypPudy5[0].selected());
    EXPECT_EQ(window.SelectedType, FacilityType::Tank);
}

}  // namespace
}  // namespace mero::forms::test
