// SPDX-License-Identifier: MIT
/// Results are current as long as the inputs that their type reads are those of its last calculation.
#include "forms/calc/result_state.h"

#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using enum FacilityType;

class ResultStateTest : public DesignTest {
  protected:
    ResultState state(FacilityType type) { return resultState(window, type); }

    void SetUp() override { project.site("500", "1e-4", kStorm, 3); }
    void calculatedTrench() {
        project.choose(Trench);
        project.set(window.txtSirkaRyhy[Trench], "1");
        project.set(window.txtVyskaRyhy[Trench], "1.5");
        project.calculate();
        project.messages();
    }
    void calculatedShaft() {
        project.choose(Shaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, "1");
        project.set(window.txtTloustkaSteny, "0.1");
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, "0.5");
        project.set(window.txtMinPrusakDraha, "2");
        project.calculate();
        project.messages();
    }
    void calculatedTank() {
        project.chooseTank();
        project.set(window.txtSpecMeroIntenz, "10");
        project.set(window.txtDelkaDnaNadrz, "20");
        project.set(window.txtSirkaDnaNadrz, "10");
        project.set(window.txtHloubkaNadrz, "1");
        project.set(window.txtSklonSvahuNadrz, "2");
        project.calculate();
        project.messages();
    }
};

TEST_F(ResultStateTest, BeforeTheCalculationThereAreNone) {
    project.choose(Trench);
    EXPECT_EQ(state(Trench), ResultState::None);
    project.choose(SwaleTrench);
    project.click(window.optSelTypPudy3[0]);
    ASSERT_NE(window.txtVsakPlocha[SwaleTrench].text(), "") << "the starting area is shown at once";
    EXPECT_EQ(state(SwaleTrench), ResultState::None);
}

TEST_F(ResultStateTest, AChangedInputMakesATrenchStaleUntilItIsCalculatedOrTakenBack) {
    calculatedTrench();
    EXPECT_EQ(state(Trench), ResultState::Current);
    project.set(window.txtSirkaRyhy[Trench], "2");
    EXPECT_EQ(state(Trench), ResultState::Stale);
    project.set(window.txtSirkaRyhy[Trench], "1");
    EXPECT_EQ(state(Trench), ResultState::Current);
    project.set(window.txtSirkaRyhy[Trench], "2");
    project.calculate();
    EXPECT_EQ(state(Trench), ResultState::Current);
}

TEST_F(ResultStateTest, TheCriticalRainThatReplacesThePickedOneIsNoChange) {
    ASSERT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
    calculatedTrench();
    ASSERT_NE(project.pickedRain(), "15 min, 160 l/s.ha");
    EXPECT_EQ(state(Trench), ResultState::Current);
}

TEST_F(ResultStateTest, AnInputOfAnotherTypeIsNone) {
    calculatedTrench();
    project.tab(kTabInputs);
    project.set(window.txtHPV, "3");
    EXPECT_EQ(state(Trench), ResultState::Current) << "a trench does not read the groundwater";
}

TEST_F(ResultStateTest, RefusedInputsLeaveTheOldResultsStale) {
    calculatedTrench();
    project.set(window.txtVyskaRyhy[Trench], "0");
    project.calculate();
    EXPECT_EQ(state(Trench), ResultState::Stale);
    EXPECT_EQ(window.record().last(Trench).end, CalculationEnd::Refused);
    ASSERT_EQ(window.record().last(Trench).verdicts.size(), 1U);
    EXPECT_EQ(window.record().last(Trench).verdicts[0], design::VerdictId::TrenchHeightNotPositive);
}

TEST_F(ResultStateTest, ARunTimeErrorLeavesStaleResultsAndIsTold) {
    calculatedTrench();
    project.set(window.txtSoucBezp[Trench], "0");
    project.calculate();
    ASSERT_FALSE(project.errors().empty());
    EXPECT_EQ(state(Trench), ResultState::Stale);
    EXPECT_EQ(window.record().last(Trench).verdicts.back(), design::VerdictId::ErrorDivisionByZero);
}

TEST_F(ResultStateTest, TheGroundwaterMakesAShaftStale) {
    calculatedShaft();
    EXPECT_EQ(state(Shaft), ResultState::Current);
    project.tab(kTabInputs);
    project.set(window.txtHPV, "3");
    EXPECT_EQ(state(Shaft), ResultState::Stale);
}

TEST_F(ResultStateTest, HalfAShaftIsStale) {
    project.choose(Shaft);
    project.click(window.optSelTypSachty[0]);
    project.set(window.txtPrumerSachtyVnit, "1");
    project.set(window.txtTloustkaSteny, "0.1");
    project.set(window.txtSoucBezp[Shaft], "1.3");
    ASSERT_NE(window.txtVyskaVzduti[Shaft].text(), "") << "the safety factor calculates the level at once";
    ASSERT_EQ(window.txtObjAkum[Shaft].text(), "");
    EXPECT_EQ(state(Shaft), ResultState::Stale);
}

TEST_F(ResultStateTest, TheSandLayerCountsOnlyWithItsVariant) {
    calculatedShaft();
    project.click(window.optSelTypPudy5[1]);
    EXPECT_EQ(state(Shaft), ResultState::Stale);
    project.click(window.optSelTypPudy5[0]);
    EXPECT_EQ(state(Shaft), ResultState::Current);
    project.set(window.txtVyskaFiltrVrstvy, "0.6");
    EXPECT_EQ(state(Shaft), ResultState::Stale);
}

TEST_F(ResultStateTest, LiveTypesAreCurrentAfterEachKey) {
    project.choose(Surface);
    EXPECT_EQ(state(Surface), ResultState::Current);
    project.tab(kTabInputs);
    project.set(window.txtSoucFiltrace, "5e-5");
    EXPECT_EQ(state(Surface), ResultState::Stale) << "its panel is hidden with the old result";
    project.choose(Surface);
    EXPECT_EQ(state(Surface), ResultState::Current);
    project.choose(Swale);
    project.click(window.optSelTypPudy2[1]);
    EXPECT_EQ(state(Swale), ResultState::Current);
    project.set(window.txtSoucBezp[Swale], "1.5");
    EXPECT_EQ(state(Swale), ResultState::Current);
    project.set(window.txtSoucBezp[Swale], "");
    EXPECT_EQ(state(Swale), ResultState::Stale) << "an emptied factor calculates nothing";
}

TEST_F(ResultStateTest, ARainTableThatWasNotConfirmedMakesASwaleStale) {
    project.choose(Swale);
    project.click(window.optSelTypPudy2[0]);
    project.tab(kTabInputs);
    project.click(window.cmdEdit[0]);
    project.cell(window.intDialog.fgIntDeste, 9, 1);
    project.set(window.intDialog.txtSChange, "50");
    window.intDialog.close_requested();
    EXPECT_EQ(state(Swale), ResultState::Stale);
}

TEST_F(ResultStateTest, AnUnconfirmedPipeIsAChange) {
    calculatedTrench();
    project.click(window.chkSelPretok[Trench]);
    EXPECT_EQ(state(Trench), ResultState::None) << "ticking clears the results";
    project.calculate();
    EXPECT_EQ(state(Trench), ResultState::Current);
    project.set(window.txtPrumTroubVnit[Trench], "200");
    EXPECT_EQ(state(Trench), ResultState::Stale);
}

TEST_F(ResultStateTest, ACoefficientConfirmedForAnotherWidthIsAChange) {
    calculatedTrench();
    project.click(window.chkSelPretok[Trench]);
    project.set(window.txtPrumTroubVnit[Trench], "180");
    project.set(window.txtPrumTroubVnej[Trench], "200");
    project.click(window.cmdOK[Trench]);
    project.calculate();
    EXPECT_EQ(state(Trench), ResultState::Current);
    project.set(window.txtSirkaRyhy[Trench], "2");
    project.click(window.cmdEdit[Trench]);
    project.click(window.cmdOK[Trench]);
    project.set(window.txtSirkaRyhy[Trench], "1");
    EXPECT_EQ(state(Trench), ResultState::Stale) << "the coefficient with the pipes is that of 2 m";
}

TEST_F(ResultStateTest, WithoutACriticalRainThePickedOneCounts) {
    // The bottom alone, 1.13 m2 at half of 1 m/s, takes more than 500 m2 bring.
    project.filtration("1");
    calculatedShaft();
    ASSERT_EQ(window.txtVyskaVzduti[Shaft].text(), "0.00");
    EXPECT_EQ(state(Shaft), ResultState::Current);
    project.rains(kStorm, 5);
    project.choose(Shaft);
    EXPECT_EQ(state(Shaft), ResultState::Stale) << "the volume is that of the rain picked before";
}

TEST_F(ResultStateTest, TheReportIsStaleWhenAnotherTypeReplacedTheStoredResults) {
    calculatedTank();
    EXPECT_EQ(reportState(window), ResultState::Current);
    calculatedTrench();
    project.chooseTank();
    EXPECT_EQ(state(Tank), ResultState::Current) << "the boxes still show the tank's own results";
    EXPECT_EQ(reportState(window), ResultState::Stale) << "the stored volume is the trench's";
}

}  // namespace
}  // namespace mero::forms::test
