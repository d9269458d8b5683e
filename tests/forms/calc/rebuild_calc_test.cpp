// SPDX-License-Identifier: MIT
// Re-selecting the type after a common input changed, and clearing a type's results.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoArea = "critical: Zadejte nepropustnou odvodňovanou plochu";

struct RebuildCalcTest : testing::Test {
    RebuildCalcTest() { p.giveSite(); }
    TestProgram p;
    frmCalc& w = p.window();
};

TEST_F(RebuildCalcTest, TheFirstInputSelectsTheDecentralisedGroup) {
    TestProgram fresh;
    fresh.paste(fresh.window().txtSoucFiltrace, "1");
    EXPECT_TRUE(fresh.window().optSelType[0].selected());
    EXPECT_TRUE(fresh.window().cboSelType.enabled());
    EXPECT_EQ(fresh.window().cboSelType.position(), 0);
}

TEST_F(RebuildCalcTest, AChangedInputLeavesNoPanelAndNoType) {
    for (const FacilityType type : {FacilityType::Surface, FacilityType::Swale, FacilityType::SwaleTrench,
                                    FacilityType::Trench, FacilityType::Shaft}) {
        p.chooseType(type);
        ASSERT_TRUE(w.picResults[type].visible());
        p.paste(w.txtSoucFiltrace, static_cast<int>(type) % 2 == 0 ? "2e-4" : "3e-4");
        EXPECT_FALSE(w.picResults[type].visible()) << static_cast<int>(type);
        EXPECT_EQ(w.SelectedType, FacilityType::None);
        EXPECT_EQ(w.cboSelType.text(), "[Vyber typ zasakování]");
    }
}

TEST_F(RebuildCalcTest, TheTankIsSelectedAgainAndShown) {
    p.tab(kTabDesign);
    p.click(w.optSelType[1]);
    p.paste(w.txtSoucFiltrace, "2e-4");
    EXPECT_EQ(w.SelectedType, FacilityType::Tank);
    EXPECT_EQ(w.cboSelType.text(), "Vsakovací nádrže");
    EXPECT_TRUE(w.picResults[6].visible());
}

TEST_F(RebuildCalcTest, ARefusedGroupHidesThePanelsAndSelectsNothing) {
    p.tab(kTabDesign);
    p.click(w.optSelType[1]);
    ASSERT_TRUE(w.picResults[6].visible());
    p.desk.take();
    p.takeAreaAway();
    EXPECT_EQ(p.desk.count(kNoArea), 1);
    EXPECT_EQ(w.TypeGroup, 1);
    EXPECT_EQ(w.SelectedType, FacilityType::Shaft) << "the shaft's name is not in the list";
    EXPECT_EQ(w.cboSelType.position(), -1);
    EXPECT_FALSE(w.picResults[6].visible());
    EXPECT_FALSE(w.picResults[5].visible());
}

TEST_F(RebuildCalcTest, DialogsRunItAsOftenAsTheyWriteAndOnceMore) {
    p.tab(kTabDesign);
    p.click(w.optSelType[1]);
    p.takeAreaAway();
    p.desk.take();
    p.giveRain("100");
    EXPECT_EQ(p.desk.count(kNoArea), 3) << "intensity, duration, confirmation";
    p.desk.take();
    p.click(w.cmdEdit[2]);
    p.cell(p.soilDialog().fgCoefProp, 4, 2);
    EXPECT_EQ(p.desk.count(kNoArea), 0);
    p.click(p.soilDialog().cmdOK);
    EXPECT_EQ(p.desk.count(kNoArea), 2) << "coefficient, confirmation";
    p.desk.take();
    p.giveArea("100");
    EXPECT_EQ(p.desk.count(kNoArea), 0);
    EXPECT_EQ(w.SelectedType, FacilityType::Tank);
}

struct ClearTypeResultsTest : RebuildCalcTest {
    /// Fills every result box of a type with a text that no calculation writes.
    template <typename... Boxes>
    static void fill(Boxes&... boxes) {
        (boxes.showText("?"), ...);
    }
};

TEST_F(ClearTypeResultsTest, SurfaceIsComputedAfresh) {
    p.chooseType(FacilityType::Surface);
    fill(w.txtVsakPlocha[1]);
    w.ClearTypeResults();
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "428.6");
}

TEST_F(ClearTypeResultsTest, SwaleIsComputedThroughItsSoilOption) {
    p.chooseType(FacilityType::Swale);
    fill(w.txtVsakPlocha[2], w.txtObjAkum[2], w.txtVyskaVzduti[2], w.txtDobaPrazdneni[2]);
    w.ClearTypeResults();
    EXPECT_EQ(w.txtVsakPlocha[2].text(), "100.0");
    for (const auto* box : {&w.txtObjAkum[2], &w.txtVyskaVzduti[2], &w.txtDobaPrazdneni[2]}) {
        EXPECT_NE(box->text(), "?") << box->name();
        EXPECT_NE(box->text(), "") << box->name() << ": written by the design";
    }
}

TEST_F(ClearTypeResultsTest, SwaleWithoutAreaIsLeftEmpty) {
    p.takeAreaAway();
    p.chooseType(FacilityType::Swale);
    fill(w.txtVsakPlocha[2], w.txtObjAkum[2], w.txtVyskaVzduti[2], w.txtDobaPrazdneni[2]);
    p.desk.take();
    w.ClearTypeResults();
    for (const auto* box :
         {&w.txtVsakPlocha[2], &w.txtObjAkum[2], &w.txtVyskaVzduti[2], &w.txtDobaPrazdneni[2]}) {
        EXPECT_EQ(box->text(), "") << box->name();
    }
    EXPECT_THAT(p.desk.lines, IsEmpty()) << "without a message";
}

TEST_F(ClearTypeResultsTest, CombinedObjectKeepsOnlyTheStartingArea) {
    p.chooseType(FacilityType::SwaleTrench);
    fill(w.txtVsakPlocha[3], w.txtObjAkum[3], w.txtDelkaRyhy[3], w.txtSirkaPrulehu[3], w.txtHloubkaPrulehu[3],
         w.txtDobaPrazdneni[3]);
    w.ClearTypeResults();
    EXPECT_EQ(w.txtVsakPlocha[3].text(), "100.0");
    for (const auto* box : {&w.txtObjAkum[3], &w.txtDelkaRyhy[3], &w.txtSirkaPrulehu[3],
                            &w.txtHloubkaPrulehu[3], &w.txtDobaPrazdneni[3]}) {
        EXPECT_EQ(box->text(), "") << box->name();
    }
}

TEST_F(ClearTypeResultsTest, TrenchIsEmptied) {
    p.chooseType(FacilityType::Trench);
    fill(w.txtVsakPlocha[4], w.txtObjAkum[4], w.txtDelkaRyhy[4]);
    w.ClearTypeResults();
    for (const auto* box : {&w.txtVsakPlocha[4], &w.txtObjAkum[4], &w.txtDelkaRyhy[4]}) {
        EXPECT_EQ(box->text(), "") << box->name();
    }
}

TEST_F(ClearTypeResultsTest, ShaftReselectsItsVariantAndKeepsItsTexts) {
    p.chooseType(FacilityType::Shaft);
    fill(w.txtVsakPlocha[5], w.txtObjAkum[5]);
    std::vector<bool> selections;
    w.optSelTypPudy5[0].observe(
        [&](platform::Aspect) { selections.push_back(w.optSelTypPudy5[0].selected()); });
    w.ClearTypeResults();
    EXPECT_THAT(selections, ElementsAre(false, true));
    EXPECT_EQ(w.txtVsakPlocha[5].text(), "?");
}

TEST_F(ClearTypeResultsTest, NoTypeAndTankDoNothing) {
    p.tab(kTabDesign);
    p.click(w.optSelType[1]);
    fill(w.txtObjAkum[6], w.txtVsakTok, w.txtVypObjNadrz);
    w.ClearTypeResults();
    EXPECT_EQ(w.txtObjAkum[6].text(), "?");
    EXPECT_EQ(w.txtVsakTok.text(), "?");
    p.click(w.optSelType[0]);
    fill(w.txtVsakPlocha[1]);
    w.ClearTypeResults();
    EXPECT_EQ(w.txtVsakPlocha[1].text(), "?");
}

}  // namespace
}  // namespace mero::forms
