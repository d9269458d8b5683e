// SPDX-License-Identifier: MIT
/// The sub-panels of overflow and drain: opening, confirming, refusing, re-opening.
/// The two pages decide by different tests whether a confirmation is accepted.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DrainPanels : public DesignTest {
  protected:
    void combined() {
        project.site("500", "1e-5");
        project.choose(FacilityType::SwaleTrench);
        project.set(window.txtSoucFiltrPruleh[FacilityType::SwaleTrench], "1e-4");
        section(FacilityType::SwaleTrench, "0.5", "0.5");
    }
    void trench() {
        project.site("500", "1e-5");
        project.choose(FacilityType::Trench);
        section(FacilityType::Trench, "1", "1.5");
    }
    void section(FacilityType type, const std::string& width, const std::string& height) {
        project.set(window.txtSirkaRyhy[type], width);
        project.set(window.txtVyskaRyhy[type], height);
    }
    void pipe(FacilityType type, const std::string& inner_mm, const std::string& outer_mm) {
        project.set(window.txtPrumTroubVnit[type], inner_mm);
        project.set(window.txtPrumTroubVnej[type], outer_mm);
    }
    bool panelShown(FacilityType type) { return window.picPretokSkrOdtok[type].onScreen(); }
};

TEST_F(DrainPanels, TickingOpensAtItsOwnHeightAndEditingAtOne) {
    combined();
    EXPECT_FALSE(window.cmdEdit[FacilityType::SwaleTrench].enabled());
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    EXPECT_TRUE(panelShown(FacilityType::SwaleTrench));
    EXPECT_EQ(window.picPretokSkrOdtok[FacilityType::SwaleTrench].left(), 0);
    EXPECT_EQ(window.picPretokSkrOdtok[FacilityType::SwaleTrench].top(), 3000);
    EXPECT_TRUE(window.cmdEdit[FacilityType::SwaleTrench].enabled());

    trench();
    EXPECT_FALSE(window.cmdEdit[FacilityType::Trench].enabled());
    project.click(window.chkSelPretok[FacilityType::Trench]);
    EXPECT_EQ(window.picPretokSkrOdtok[FacilityType::Trench].left(), 0);
    EXPECT_EQ(window.picPretokSkrOdtok[FacilityType::Trench].top(), 2000);
    pipe(FacilityType::Trench, "200", "220");
    project.click(window.cmdOK[FacilityType::Trench]);
    EXPECT_FALSE(panelShown(FacilityType::Trench));
    project.click(window.cmdEdit[FacilityType::Trench]);
    EXPECT_TRUE(panelShown(FacilityType::Trench));
    EXPECT_EQ(window.picPretokSkrOdtok[FacilityType::Trench].left(), 0);
    EXPECT_EQ(window.picPretokSkrOdtok[FacilityType::Trench].top(), 3000);
}

TEST_F(DrainPanels, UntickingHidesAndClearsTheResults) {
    trench();
    project.calculate();
    ASSERT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "25.9");
    project.click(window.chkSelPretok[FacilityType::Trench]);
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "");
    EXPECT_EQ(window.txtObjAkum[FacilityType::Trench].text(), "");
    EXPECT_EQ(window.txtVsakPlocha[FacilityType::Trench].text(), "");
    pipe(FacilityType::Trench, "200", "220");
    project.click(window.cmdOK[FacilityType::Trench]);
    project.calculate();
    ASSERT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "25.1");
    project.click(window.chkSelPretok[FacilityType::Trench]);
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "");
    EXPECT_FALSE(panelShown(FacilityType::Trench));
    EXPECT_FALSE(window.cmdEdit[FacilityType::Trench].enabled());
    // Without the box the porosity is in force again.
    project.calculate();
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "25.9");
    EXPECT_EQ(values.s_RR, 0.35F);
}

TEST_F(DrainPanels, ThrottledOutflowShortensTheTrench) {
    combined();
    project.calculate();
    project.messages();
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    pipe(FacilityType::SwaleTrench, "200", "220");
    project.set(window.txtSpecDrenOdtok[FacilityType::SwaleTrench], "3");
    project.click(window.cmdOK[FacilityType::SwaleTrench]);
    EXPECT_FALSE(panelShown(FacilityType::SwaleTrench));
    // The confirmation clears the results and sizes the area again.
    EXPECT_EQ(window.txtObjAkum[FacilityType::SwaleTrench].text(), "");
    EXPECT_EQ(window.txtVsakPlocha[FacilityType::SwaleTrench].text(), "50.0");
    EXPECT_EQ(values.Q_dr, 0.00015F);
    EXPECT_EQ(values.s_RR, 0.42244512F);
    project.calculate();
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::SwaleTrench].text(), "65.3");
    EXPECT_EQ(window.txtHloubkaPrulehu[FacilityType::SwaleTrench].text(), "0.21");
    EXPECT_EQ(window.txtDobaPrazdneni[FacilityType::SwaleTrench].text(), "1.2");
    EXPECT_THAT(project.messages(),
                ElementsAre(information("Navržená vsakovací plocha je dostatečná ( 32.63 < 50.00 ).")));
    // Unticked, there is neither outflow nor pipe.
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    project.calculate();
    EXPECT_EQ(values.Q_dr, 0.0F);
    EXPECT_EQ(values.s_RR, 0.35F);
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::SwaleTrench].text(), "85.9");
}

TEST_F(DrainPanels, OverflowWithoutOutflowIsRefused) {
    combined();
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    pipe(FacilityType::SwaleTrench, "200", "220");
    project.click(window.cmdOK[FacilityType::SwaleTrench]);
    EXPECT_FALSE(window.chkSelPretok[FacilityType::SwaleTrench].checked());
    EXPECT_FALSE(panelShown(FacilityType::SwaleTrench));
    EXPECT_FALSE(window.cmdEdit[FacilityType::SwaleTrench].enabled());
    EXPECT_EQ(values.Q_dr, 0.0F);
    // It stopped before the pipe was looked at.
    EXPECT_EQ(values.s_RR, 0.0F);
}

TEST_F(DrainPanels, OverflowNeedsNoPipe) {
    // Without diameters the coefficient is the porosity, which is not 0: accepted.
    combined();
    project.click(window.chkSelPretok[FacilityType::SwaleTrench]);
    project.set(window.txtSpecDrenOdtok[FacilityType::SwaleTrench], "3");
    project.click(window.cmdOK[FacilityType::SwaleTrench]);
    EXPECT_TRUE(window.chkSelPretok[FacilityType::SwaleTrench].checked());
    EXPECT_FALSE(panelShown(FacilityType::SwaleTrench));
    EXPECT_EQ(values.s_RR, 0.35F);
    project.calculate();
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::SwaleTrench].text(), "75.1");
}

TEST_F(DrainPanels, DrainNeedsBothDiametersButKeepsTheCoefficient) {
    trench();
    project.click(window.chkSelPretok[FacilityType::Trench]);
    pipe(FacilityType::Trench, "200", "");
    project.click(window.cmdOK[FacilityType::Trench]);
    EXPECT_FALSE(window.chkSelPretok[FacilityType::Trench].checked());
    EXPECT_FALSE(panelShown(FacilityType::Trench));
    // ((0.2^2 / 0.35) pi/4 + 1.5) 0.35 / 1.5 = 0.370944
    EXPECT_EQ(values.s_RR, 0.37094393F);

    project.click(window.chkSelPretok[FacilityType::Trench]);
    pipe(FacilityType::Trench, "", "220");
    project.click(window.cmdOK[FacilityType::Trench]);
    EXPECT_FALSE(window.chkSelPretok[FacilityType::Trench].checked());
    // (-(0.22^2) pi/4 + 1.5) 0.35 / 1.5 = 0.341130
    EXPECT_EQ(values.s_RR, 0.34113023F);
}

TEST_F(DrainPanels, CoefficientIsThatOfTheConfirmation) {
    trench();
    project.click(window.chkSelPretok[FacilityType::Trench]);
    pipe(FacilityType::Trench, "200", "220");
    project.set(window.txtPocetPotrubi[FacilityType::Trench], "2");
    project.click(window.cmdOK[FacilityType::Trench]);
    const float confirmed = values.s_RR;
    EXPECT_EQ(confirmed, 0.37414837F);
    project.set(window.txtSirkaRyhy[FacilityType::Trench], "2");
    project.calculate();
    EXPECT_EQ(values.s_RR, confirmed);
}

TEST_F(DrainPanels, PipeCountReportsWhatItCannotRead) {
    trench();
    project.click(window.chkSelPretok[FacilityType::Trench]);
    platform::TextBox& count = window.txtPocetPotrubi[FacilityType::Trench];
    project.clear(count);
    EXPECT_THAT(project.errors(), ElementsAre(13));
    EXPECT_EQ(count.text(), "");
    EXPECT_EQ(values.txtPocetPotrubi, 1.0F);
    project.type(count, "3");
    EXPECT_THAT(project.errors(), IsEmpty());
    EXPECT_EQ(values.txtPocetPotrubi, 3.0F);
    project.type(count, "x");
    EXPECT_THAT(project.errors(), ElementsAre(13));
    EXPECT_EQ(count.text(), "3x");
    EXPECT_EQ(values.txtPocetPotrubi, 3.0F);
    EXPECT_FALSE(project.ended());
}

TEST_F(DrainPanels, OtherMembersDoNothing) {
    trench();
    project.calculate();
    window.cmdOK_Click(5);
    window.cmdOK_Click(2);
    EXPECT_EQ(window.txtDelkaRyhy[FacilityType::Trench].text(), "25.9");
    EXPECT_EQ(values.s_RR, 0.35F);
}

}  // namespace
}  // namespace mero::forms::test
