// SPDX-License-Identifier: MIT
/// Arithmetic that fails: reported as a run-time error, the event ends there, the program goes on.
/// What was stored and shown before the error stays; no field ever shows "inf" or "nan".
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kInvalidCall = 5;
constexpr int kOverflow = 6;
constexpr int kDivisionByZero = 11;
constexpr int kTypeMismatch = 13;

class ArithmeticFaults : public DesignTest {
  protected:
    void TearDown() override { EXPECT_FALSE(project.ended()); }

    void shaft() {
        project.choose(FacilityType::Shaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, "1");
        project.set(window.txtTloustkaSteny, "0.1");
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, "0.5");
    }
    void trench(FacilityType type) {
        project.choose(type);
        project.set(window.txtSirkaRyhy[type], "0.5");
        project.set(window.txtVyskaRyhy[type], "0.5");
    }
};

TEST_F(ArithmeticFaults, SurfaceWhereTheSoilTakesExactlyTheRain) {
    // 2^-17 m/s x 10^7 / (2 x 38.14697265625) is exactly 1.
    project.site("1000", "7.62939453125e-6", {{"15", "38.14697265625"}}, 1);
    project.choose(FacilityType::Surface);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    // The panel was shown and its field cleared before the error.
    EXPECT_EQ(window.txtVsakPlocha[FacilityType::Surface].text(), "0");
    EXPECT_EQ(project.shownType(), FacilityType::Surface);
    // The program goes on.
    project.rains({{"15", "100"}}, 1);
    project.choose(FacilityType::Surface);
    EXPECT_THAT(project.errors(), IsEmpty());
    EXPECT_NE(window.txtVsakPlocha[FacilityType::Surface].text(), "0");
}

TEST_F(ArithmeticFaults, SurfaceTooLargeForASingle) {
    project.site("3e38", "1e-5", {{"15", "50"}}, 1);
    project.choose(FacilityType::Surface);
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtVsakPlocha[FacilityType::Surface].text(), "0");
    EXPECT_EQ(values.txtVsakPlocha, 0.0F);
}

TEST_F(ArithmeticFaults, SwaleOfNoArea) {
    // A tenth of 0.4 m2 shows and is stored as 0.0: the volume has nothing to stand on.
    project.site("0.4", "1e-5");
    project.choose(FacilityType::Swale);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtVsakPlocha[FacilityType::Swale].text(), "0.0");
    EXPECT_EQ(window.txtObjAkum[FacilityType::Swale].text(), "0.0");
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Swale].text(), "");
    EXPECT_EQ(window.txtDobaPrazdneni[FacilityType::Swale].text(), "");
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
}

TEST_F(ArithmeticFaults, SwaleVolumeTooLarge) {
    project.site("3e38", "1e-5", {{"1000000", "300"}});
    project.choose(FacilityType::Swale);
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtObjAkum[FacilityType::Swale].text(), "");
    // The search was over: its rain is picked.
    EXPECT_EQ(project.pickedRain(), "1000000 min, 300 l/s.ha");
    EXPECT_EQ(values.txtObjAkum, 0.0F);
}

TEST_F(ArithmeticFaults, SwaleEmptyingTimeTooLong) {
    project.site("500", "1e-44");
    project.choose(FacilityType::Swale);
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Swale].text(), "0.34");
    EXPECT_EQ(window.txtDobaPrazdneni[FacilityType::Swale].text(), "");
}

TEST_F(ArithmeticFaults, CombinedTrenchThatTakesNothing) {
    // Ticked but never confirmed, the storage coefficient is 0; without a subsoil nothing soaks away.
    project.area("500");
    project.rains(kStorm);
    trench(FacilityType::SwaleTrench);
    project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-4");
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtObjAkum[FacilityType::SwaleTrench].text(), "6.8");
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::SwaleTrench].text(), "");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(ArithmeticFaults, CombinedEmptyingTimeTooLong) {
    project.site("500", "1e-5");
    trench(FacilityType::SwaleTrench);
    project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-4");
    project.calculate();
    project.messages();
    // Without rain there is no trench, and the depth in store would take too long to empty.
    project.rains({});
    project.choose(FacilityType::SwaleTrench);
    project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-44");
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::SwaleTrench].text(), "0.0");
    EXPECT_EQ(window.txtDobaPrazdneni[FacilityType::SwaleTrench].text(), "");
}

TEST_F(ArithmeticFaults, TrenchThatTakesNothing) {
    project.area("500");
    project.rains(kStorm);
    trench(FacilityType::Trench);
    project.click(window.chkSelPretok[FacilityType::Trench]);
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "");
}

TEST_F(ArithmeticFaults, TrenchWithoutSafetyFactor) {
    project.site("500", "1e-5", kStorm, 3);
    trench(FacilityType::Trench);
    project.set(window.txtSoucBezp[FacilityType::Trench], "0");
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "");
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
}

TEST_F(ArithmeticFaults, DrainOfATrenchWithoutSection) {
    project.site("500", "1e-5");
    project.choose(FacilityType::Trench);
    project.click(window.chkSelPretok[FacilityType::Trench]);
    project.set(window.txtPrumTroubVnit[FacilityType::Trench], "200");
    project.set(window.txtPrumTroubVnej[FacilityType::Trench], "220");
    project.click(window.cmdOK[FacilityType::Trench]);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_TRUE(window.chkSelPretok[FacilityType::Trench].checked());
    EXPECT_TRUE(window.picPretokSkrOdtok[FacilityType::Trench].onScreen());
    EXPECT_EQ(values.s_RR, 0.0F);
}

TEST_F(ArithmeticFaults, OverflowInAFillWithoutPores) {
    project.site("500", "1e-5");
    trench(FacilityType::SwaleTrench);
    project.clear(window.txtPorVyplne[FacilityType::SwaleTrench]);
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    project.set(window.txtSpecDrenOdtok[FacilityType::SwaleTrench], "3");
    project.click(window.cmdOK[FacilityType::SwaleTrench]);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    // The outflow was stored before.
    EXPECT_EQ(values.Q_dr, 0.00015F);
    EXPECT_TRUE(window.picPretokSkrOdtok[FacilityType::SwaleTrench].onScreen());
}

TEST_F(ArithmeticFaults, SafetyFactorTypedBeforeTheShaftHasDiameters) {
    project.site("70", "1e-4");
    project.choose(FacilityType::Shaft);
    project.clear(window.txtSoucBezp[FacilityType::Shaft]);
    EXPECT_THAT(project.errors(), IsEmpty());
    // One error per key, and the factor is stored all the same.
    project.type(window.txtSoucBezp[FacilityType::Shaft], "1.5");
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero, kDivisionByZero, kDivisionByZero));
    EXPECT_EQ(window.txtSoucBezp[FacilityType::Shaft].text(), "1.5");
    EXPECT_EQ(values.txtSoucBezp, 1.5F);
}

TEST_F(ArithmeticFaults, SafetyFactorOfZeroOnAShaft) {
    project.site("70", "1e-4");
    shaft();
    project.calculate();
    project.messages();
    project.set(window.txtSoucBezp[FacilityType::Shaft], "0");
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(values.txtSoucBezp, 0.0F);
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Shaft].text(), "1.41");
}

TEST_F(ArithmeticFaults, NoShafts) {
    project.site("70", "1e-4");
    shaft();
    project.clear(window.txtSachtyCount);
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    // The design does not start after the failed balance.
    EXPECT_EQ(window.txtObjAkum[FacilityType::Shaft].text(), "");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(ArithmeticFaults, ShaftDepthTooLarge) {
    project.site("70", "1e-4");
    shaft();
    project.set(window.txtNezamrzHlPritok, "3e38");
    project.set(window.txtVyskaFiltrVrstvy, "3e38");
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtVyskaVzduti[FacilityType::Shaft].text(), "1.41");
    EXPECT_EQ(window.txtVsakPlocha[FacilityType::Shaft].text(), "3.34");
    EXPECT_EQ(window.txtHloubkaSachty.text(), "");
}

TEST_F(ArithmeticFaults, RootOfANegativeArea) {
    project.choose(FacilityType::Shaft);
    project.click(window.optSelTypSachty[1]);
    project.set(window.txtPrumerSachtyVnit, "1");
    project.set(window.txtPrumerSachtyVnej, "1");
    ASSERT_EQ(values.D_i, 1.1283791F);
    project.set(window.txtPrumerSachtyVnej, "-1");
    EXPECT_THAT(project.errors(), ElementsAre(kInvalidCall));
    EXPECT_EQ(window.txtPrumerSachtyVnej.text(), "-1");
    EXPECT_EQ(values.txtPrumerSachtyVnej, -1.0F);
    EXPECT_EQ(values.D_i, 1.1283791F);
    EXPECT_EQ(values.D_a, 1.1283791F);
    // The inner root is good, the outer is not: the inner diameter is stored.
    project.set(window.txtPrumerSachtyVnit, "-4");
    EXPECT_THAT(project.errors(), IsEmpty());
    EXPECT_EQ(values.D_i, 2.2567582F);
    project.set(window.txtTloustkaSteny, "2");
    EXPECT_THAT(project.errors(), ElementsAre(kInvalidCall));
    EXPECT_EQ(values.D_a, 2.2567582F);
}

TEST_F(ArithmeticFaults, RequiredDepthTypedOver) {
    project.site("70", "1e-4");
    shaft();
    project.calculate();
    project.clear(window.txtPotrHloubkaZahl);
    EXPECT_THAT(project.errors(), ElementsAre(kTypeMismatch));
    EXPECT_EQ(values.txtPotrHloubkaZahl, 3.91F);
}

TEST_F(ArithmeticFaults, TankTooLarge) {
    project.site("5000", "1e-4");
    project.chooseTank();
    project.set(window.txtSpecMeroIntenz, "10");
    project.set(window.txtDelkaDnaNadrz, "20");
    project.set(window.txtSirkaDnaNadrz, "10");
    project.set(window.txtHloubkaNadrz, "1");
    project.calculate();
    project.messages();
    project.set(window.txtDelkaDnaNadrz, "3e38");
    project.set(window.txtSpecMeroIntenz, "20");
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    // Nothing was written, although the flow was stored: 1e-7 x 20 x 5000.
    EXPECT_EQ(window.txtVsakTok.text(), "0.01");
    EXPECT_EQ(window.txtObjAkum[FacilityType::Tank].text(), "113.40");
    EXPECT_EQ(window.txtVypObjNadrz.text(), "200.00");
    EXPECT_EQ(values.txtVsakTok, 0.01F);
    EXPECT_THAT(project.messages(), IsEmpty());
}

}  // namespace
}  // namespace mero::forms::test
