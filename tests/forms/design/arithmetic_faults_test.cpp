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
        project.choose(kShaft);
        project.click(window.optSelTypSachty[0]);
        project.set(window.txtPrumerSachtyVnit, "1");
        project.set(window.txtTloustkaSteny, "0.1");
        project.set(window.txtNezamrzHlPritok, "1");
        project.set(window.txtVyskaFiltrVrstvy, "0.5");
    }
    void trench(InfiltrationType type) {
        project.choose(type);
        project.set(window.txtSirkaRyhy[type], "0.5");
        project.set(window.txtVyskaRyhy[type], "0.5");
    }
};

TEST_F(ArithmeticFaults, SurfaceWhereTheSoilTakesExactlyTheRain) {
    // 2^-17 m/s x 10^7 / (2 x 38.14697265625) is exactly 1.
    project.site("1000", "7.62939453125e-6", {{"15", "38.14697265625"}}, 1);
    project.choose(kSurface);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    // The panel was shown and its field cleared before the error.
    EXPECT_EQ(window.txtVsakPlocha[kSurface].text(), "0");
    EXPECT_EQ(project.shownType(), kSurface);
    // The program goes on.
    project.rains({{"15", "100"}}, 1);
    project.choose(kSurface);
    EXPECT_THAT(project.errors(), IsEmpty());
    EXPECT_NE(window.txtVsakPlocha[kSurface].text(), "0");
}

TEST_F(ArithmeticFaults, SurfaceTooLargeForASingle) {
    project.site("3e38", "1e-5", {{"15", "50"}}, 1);
    project.choose(kSurface);
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtVsakPlocha[kSurface].text(), "0");
    EXPECT_EQ(values.txtVsakPlocha, 0.0F);
}

TEST_F(ArithmeticFaults, SwaleOfNoArea) {
    // A tenth of 0.4 m2 shows and is stored as 0.0: the volume has nothing to stand on.
    project.site("0.4", "1e-5");
    project.choose(kSwale);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtVsakPlocha[kSwale].text(), "0.0");
    EXPECT_EQ(window.txtObjAkum[kSwale].text(), "0.0");
    EXPECT_EQ(window.txtVyskaVzduti[kSwale].text(), "");
    EXPECT_EQ(window.txtDobaPrazdneni[kSwale].text(), "");
    EXPECT_EQ(project.pickedRain(), "120 min, 36 l/s.ha");
}

TEST_F(ArithmeticFaults, SwaleVolumeTooLarge) {
    project.site("3e38", "1e-5", {{"1000000", "300"}});
    project.choose(kSwale);
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtObjAkum[kSwale].text(), "");
    // The search was over: its rain is picked.
    EXPECT_EQ(project.pickedRain(), "1000000 min, 300 l/s.ha");
    EXPECT_EQ(values.txtObjAkum, 0.0F);
}

TEST_F(ArithmeticFaults, SwaleEmptyingTimeTooLong) {
    project.site("500", "1e-44");
    project.choose(kSwale);
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtVyskaVzduti[kSwale].text(), "0.34");
    EXPECT_EQ(window.txtDobaPrazdneni[kSwale].text(), "");
}

TEST_F(ArithmeticFaults, CombinedTrenchThatTakesNothing) {
    // Ticked but never confirmed, the storage coefficient is 0; without a subsoil nothing soaks away.
    project.area("500");
    project.rains(kStorm);
    trench(kSwaleTrench);
    project.set(window.txtSoucFiltrPruleh[kSwaleTrench], "1e-4");
    project.click(window.chkSelPretok[kSwaleTrench]);
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtObjAkum[kSwaleTrench].text(), "6.8");
    EXPECT_EQ(window.txtDelkaRyhy[kSwaleTrench].text(), "");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(ArithmeticFaults, CombinedEmptyingTimeTooLong) {
    project.site("500", "1e-5");
    trench(kSwaleTrench);
    project.set(window.txtSoucFiltrPruleh[kSwaleTrench], "1e-4");
    project.calculate();
    project.messages();
    // Without rain there is no trench, and the depth in store would take too long to empty.
    project.rains({});
    project.choose(kSwaleTrench);
    project.set(window.txtSoucFiltrPruleh[kSwaleTrench], "1e-44");
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtDelkaRyhy[kSwaleTrench].text(), "0.0");
    EXPECT_EQ(window.txtDobaPrazdneni[kSwaleTrench].text(), "");
}

TEST_F(ArithmeticFaults, TrenchThatTakesNothing) {
    project.area("500");
    project.rains(kStorm);
    trench(kTrench);
    project.click(window.chkSelPretok[kTrench]);
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtDelkaRyhy[kTrench].text(), "");
}

TEST_F(ArithmeticFaults, TrenchWithoutSafetyFactor) {
    project.site("500", "1e-5", kStorm, 3);
    trench(kTrench);
    project.set(window.txtSoucBezp[kTrench], "0");
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(window.txtDelkaRyhy[kTrench].text(), "");
    EXPECT_EQ(project.pickedRain(), "15 min, 160 l/s.ha");
}

TEST_F(ArithmeticFaults, DrainOfATrenchWithoutSection) {
    project.site("500", "1e-5");
    project.choose(kTrench);
    project.click(window.chkSelPretok[kTrench]);
    project.set(window.txtPrumTroubVnit[kTrench], "200");
    project.set(window.txtPrumTroubVnej[kTrench], "220");
    project.click(window.cmdOK[kTrench]);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_TRUE(window.chkSelPretok[kTrench].checked());
    EXPECT_TRUE(window.picPretokSkrOdtok[kTrench].onScreen());
    EXPECT_EQ(values.s_RR, 0.0F);
}

TEST_F(ArithmeticFaults, OverflowInAFillWithoutPores) {
    project.site("500", "1e-5");
    trench(kSwaleTrench);
    project.clear(window.txtPorVyplne[kSwaleTrench]);
    project.click(window.chkSelPretok[kSwaleTrench]);
    project.set(window.txtSpecDrenOdtok[kSwaleTrench], "3");
    project.click(window.cmdOK[kSwaleTrench]);
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    // The outflow was stored before.
    EXPECT_EQ(values.Q_dr, 0.00015F);
    EXPECT_TRUE(window.picPretokSkrOdtok[kSwaleTrench].onScreen());
}

TEST_F(ArithmeticFaults, SafetyFactorTypedBeforeTheShaftHasDiameters) {
    project.site("70", "1e-4");
    project.choose(kShaft);
    project.clear(window.txtSoucBezp[kShaft]);
    EXPECT_THAT(project.errors(), IsEmpty());
    // One error per key, and the factor is stored all the same.
    project.type(window.txtSoucBezp[kShaft], "1.5");
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero, kDivisionByZero, kDivisionByZero));
    EXPECT_EQ(window.txtSoucBezp[kShaft].text(), "1.5");
    EXPECT_EQ(values.txtSoucBezp, 1.5F);
}

TEST_F(ArithmeticFaults, SafetyFactorOfZeroOnAShaft) {
    project.site("70", "1e-4");
    shaft();
    project.calculate();
    project.messages();
    project.set(window.txtSoucBezp[kShaft], "0");
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    EXPECT_EQ(values.txtSoucBezp, 0.0F);
    EXPECT_EQ(window.txtVyskaVzduti[kShaft].text(), "1.41");
}

TEST_F(ArithmeticFaults, NoShafts) {
    project.site("70", "1e-4");
    shaft();
    project.clear(window.txtSachtyCount);
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kDivisionByZero));
    // The design does not start after the failed balance.
    EXPECT_EQ(window.txtObjAkum[kShaft].text(), "");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(ArithmeticFaults, ShaftDepthTooLarge) {
    project.site("70", "1e-4");
    shaft();
    project.set(window.txtNezamrzHlPritok, "3e38");
    project.set(window.txtVyskaFiltrVrstvy, "3e38");
    project.calculate();
    EXPECT_THAT(project.errors(), ElementsAre(kOverflow));
    EXPECT_EQ(window.txtVyskaVzduti[kShaft].text(), "1.41");
    EXPECT_EQ(window.txtVsakPlocha[kShaft].text(), "3.34");
    EXPECT_EQ(window.txtHloubkaSachty.text(), "");
}

TEST_F(ArithmeticFaults, RootOfANegativeArea) {
    project.choose(kShaft);
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
    EXPECT_EQ(window.txtObjAkum[kTank].text(), "113.40");
    EXPECT_EQ(window.txtVypObjNadrz.text(), "200.00");
    EXPECT_EQ(values.txtVsakTok, 0.01F);
    EXPECT_THAT(project.messages(), IsEmpty());
}

}  // namespace
}  // namespace mero::forms::test
