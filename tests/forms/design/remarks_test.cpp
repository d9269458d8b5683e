// SPDX-License-Identifier: MIT
/// Remarks beside the fields: which value counts, what is implausible, what is not confirmed.
#include "forms/calc/remarks.h"

#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using enum FacilityType;
using ::testing::HasSubstr;

class RemarksTest : public DesignTest {
  protected:
    static std::string find(const std::vector<Remark>& remarks, const platform::Control& control) {
        for (const Remark& remark : remarks) {
            if (remark.beside == &control) {
                return remark.text;
            }
        }
        return "";
    }
    std::string onFirstTab(const platform::Control& control) { return find(siteRemarks(window), control); }
    std::string onPanel(FacilityType type, const platform::Control& control) {
        return find(panelRemarks(window, type), control);
    }
    void trench(const std::string& width_m) {
        project.choose(Trench);
        project.set(window.txtSirkaRyhy[Trench], width_m);
        project.set(window.txtVyskaRyhy[Trench], "1.5");
    }
};

TEST_F(RemarksTest, AMissingGroundwaterIsNotJudged) {
    EXPECT_EQ(onFirstTab(window.txtHPV), "Nezadána, neposoudí se.");
    project.set(window.txtHPV, "3");
    EXPECT_EQ(onFirstTab(window.txtHPV), "");
}

TEST_F(RemarksTest, CoefficientsBeyondTheirLimitsAreRemarked) {
    project.set(window.txtSoucFiltrace, "0.01");
    EXPECT_EQ(onFirstTab(window.txtSoucFiltrace), "") << "the limit itself is plausible";
    project.set(window.txtSoucFiltrace, "0.02");
    EXPECT_EQ(onFirstTab(window.txtSoucFiltrace),
              "Neobvyklá hodnota: čeká se 1e-7 až 0.01, obvykle 1e-6 až 1e-3.");
    project.set(window.txtSoucFiltrace, "1e-7");
    EXPECT_EQ(onFirstTab(window.txtSoucFiltrace), "");
    project.set(window.txtSoucFiltrace, "9e-8");
    EXPECT_NE(onFirstTab(window.txtSoucFiltrace), "");
}

TEST_F(RemarksTest, ANumberThatIsBeingTypedIsNotRemarked) {
    project.type(window.txtSoucFiltrace, "1e-");
    EXPECT_EQ(onFirstTab(window.txtSoucFiltrace), "");
}

TEST_F(RemarksTest, ADimensionOutOfProportionIsRemarked) {
    project.site("500", "1e-4");
    trench("8");
    EXPECT_THAT(onPanel(Trench, window.txtSirkaRyhy[Trench]), HasSubstr("Neobvyklá hodnota"));
    project.set(window.txtSirkaRyhy[Trench], "0.8");
    EXPECT_EQ(onPanel(Trench, window.txtSirkaRyhy[Trench]), "");
}

TEST_F(RemarksTest, AnEmptyPorosityCounts) {
    project.site("500", "1e-4");
    trench("1");
    EXPECT_EQ(onPanel(Trench, window.txtPorVyplne[Trench]), "Prázdné pole: počítá se s 0.35.");
    project.set(window.txtPorVyplne[Trench], "0.3");
    EXPECT_EQ(onPanel(Trench, window.txtPorVyplne[Trench]), "");
    project.set(window.txtPorVyplne[Trench], "");
    EXPECT_EQ(onPanel(Trench, window.txtPorVyplne[Trench]), "") << "what a person empties is stored as 0";
}

TEST_F(RemarksTest, AWidthThatAnotherPanelReplacedSaysWhatCounts) {
    project.site("500", "1e-4");
    trench("1");
    project.choose(SwaleTrench);
    project.set(window.txtSirkaRyhy[SwaleTrench], "2.5");
    project.choose(Trench);
    ASSERT_EQ(window.txtSirkaRyhy[Trench].text(), "1");
    EXPECT_EQ(onPanel(Trench, window.txtSirkaRyhy[Trench]),
              "Počítá se s 2.5 m: pole sdílí hodnotu s jiným panelem. Zapište ji znovu.");
}

TEST_F(RemarksTest, TheSwalesCoefficientAfterAShaftIsTheFilters) {
    project.site("70", "1e-4");
    project.choose(SwaleTrench);
    project.set(window.txtSoucFiltrPruleh[SwaleTrench], "1e-5");
    project.choose(Shaft);
    project.click(window.optSelTypSachty[0]);
    project.set(window.txtPrumerSachtyVnit, "1");
    project.set(window.txtTloustkaSteny, "0.1");
    project.set(window.txtNezamrzHlPritok, "1");
    project.set(window.txtVyskaFiltrVrstvy, "0.5");
    project.set(window.txtMinPrusakDraha, "2");
    project.calculate();
    project.choose(SwaleTrench);
    EXPECT_THAT(onPanel(SwaleTrench, window.txtSoucFiltrPruleh[SwaleTrench]),
                HasSubstr("Počítá se s 0.00048 m/s"));
}

TEST_F(RemarksTest, ATickedDrainMustBeConfirmedAndAgainAfterAChange) {
    project.site("500", "1e-4");
    trench("1");
    const platform::CheckBox& drain = window.chkSelPretok[Trench];
    EXPECT_EQ(onPanel(Trench, drain), "");
    project.click(window.chkSelPretok[Trench]);
    EXPECT_EQ(onPanel(Trench, drain), "Panel není potvrzen: doplňte jej a stiskněte „OK“.");
    project.set(window.txtPrumTroubVnit[Trench], "180");
    project.set(window.txtPrumTroubVnej[Trench], "200");
    project.click(window.cmdOK[Trench]);
    EXPECT_EQ(onPanel(Trench, drain), "");
    project.set(window.txtVyskaRyhy[Trench], "2");
    EXPECT_EQ(onPanel(Trench, drain), "Vstupy se od potvrzení panelu změnily: stiskněte „Editovat“ a „OK“.");
    project.click(window.cmdEdit[Trench]);
    project.click(window.cmdOK[Trench]);
    EXPECT_EQ(onPanel(Trench, drain), "");
}

TEST_F(RemarksTest, TheRainIsSummedUp) {
    EXPECT_EQ(rainSummary(window), "");
    project.rains(kStorm);
    EXPECT_EQ(rainSummary(window), "Vlastní hodnoty, p = 5, návrhový déšť nevybrán");
    project.rains(kStorm, 3);
    EXPECT_EQ(rainSummary(window), "Vlastní hodnoty, p = 5, návrhový déšť 15 min");
}

TEST_F(RemarksTest, ACriticalRainThatReplacedThePickedOneIsNamed) {
    project.site("500", "1e-4", kStorm, 3);
    EXPECT_EQ(onFirstTab(window.txtSelDTrvDeste), "");
    trench("1");
    project.calculate();
    ASSERT_NE(project.pickedRain(), "15 min, 160 l/s.ha");
    EXPECT_THAT(onFirstTab(window.txtSelDTrvDeste), HasSubstr("Plošné vsakování by počítalo s deštěm"));
}

TEST_F(RemarksTest, AnAreaThatWasNotConfirmedCountsAllTheSame) {
    project.area("500");
    EXPECT_EQ(onFirstTab(window.txtOdvodNepPlocha), "");
    project.click(window.cmdEdit[1]);
    project.set(window.areaDialog.txtSoucinitel, "1");
    project.set(window.areaDialog.txtPlocha, "100");
    project.click(window.areaDialog.cmdZapsat);
    project.click(window.areaDialog.CancelButton);
    EXPECT_EQ(onFirstTab(window.txtOdvodNepPlocha), "Počítá se s 600 m²: okno ploch bylo zavřeno bez „OK“.");
}

TEST_F(RemarksTest, ARunoffCoefficientAboveOneIsRemarked) {
    project.click(window.cmdEdit[1]);
    project.set(window.areaDialog.txtSoucinitel, "1.2");
    project.set(window.areaDialog.txtPlocha, "100");
    project.click(window.areaDialog.cmdZapsat);
    project.click(window.areaDialog.OKButton);
    EXPECT_EQ(onFirstTab(window.txtOdvodNepPlocha), "Některá plocha má součinitel odtoku větší než 1.");
}

}  // namespace
}  // namespace mero::forms::test
