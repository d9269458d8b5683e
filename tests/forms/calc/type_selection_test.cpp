// SPDX-License-Identifier: MIT
// The choice of the infiltration type: groups, list, panels, guards, options, sub-panels.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoArea = "critical: Zadejte nepropustnou odvodňovanou plochu";
constexpr const char* kNoFiltration = "critical: Zadejte součinitel filtrace podloží";

struct TypeSelectionTest : testing::Test {
    /// Numbers of the result panels that are shown.
    std::vector<int> shownPanels() {
        std::vector<int> shown;
        w.picResults.forEach([&](int type, platform::Panel& panel) {
            if (panel.visible()) {
                shown.push_back(type);
            }
        });
        return shown;
    }
    /// How often code asks for the focus on the filtration coefficient.
    int focusRequests() const { return focus_requests_; }
    void SetUp() override {
        w.txtSoucFiltrace.observe([this](platform::Aspect aspect) {
            focus_requests_ += aspect == platform::Aspect::Focus ? 1 : 0;
        });
    }

    TestProgram p;
    frmCalc& w = p.window();
    const data::modPublicVariables& v = p.values();

  private:
    int focus_requests_ = 0;
};

TEST_F(TypeSelectionTest, DecentralisedListsPromptAndFiveTypes) {
    p.tab(kTabDesign);
    p.click(w.optSelType[0]);
    EXPECT_THAT(w.cboSelType.items(),
                ElementsAre("[Vyber typ zasakování]", "Plošné vsakování", "Vsakování v průlezích",
                            "Vsakování v kombinovaném objektu", "Vsakování rýhové a kombinace rýhy a drénu",
                            "Šachtové vsakování"));
    EXPECT_EQ(w.cboSelType.text(), "[Vyber typ zasakování]");
    EXPECT_TRUE(w.cboSelType.enabled());
    EXPECT_EQ(w.TypeGroup, 0);
    EXPECT_EQ(w.SelectedType, FacilityType::None);
    EXPECT_THAT(shownPanels(), IsEmpty());
    EXPECT_THAT(p.desk.lines, IsEmpty()) << "the decentralised group has no guard";
}

TEST_F(TypeSelectionTest, CentralisedWithoutAreaIsRefusedHalfWay) {
    p.tab(kTabDesign);
    p.click(w.optSelType[1]);
    EXPECT_THAT(p.desk.lines, ElementsAre(kNoArea));
    EXPECT_EQ(p.desk.messages[0].title, std::nullopt);
    EXPECT_THAT(w.cboSelType.items(), ElementsAre("Vsakovací nádrže"));
    EXPECT_EQ(w.cboSelType.position(), -1);
    EXPECT_FALSE(w.cboSelType.enabled());
    EXPECT_EQ(w.TypeGroup, 0);
    EXPECT_EQ(w.SelectedType, FacilityType::Shaft);
    EXPECT_EQ(focusRequests(), 0);
}

TEST_F(TypeSelectionTest, CentralisedRefusedLeavesThePanelThatWasShown) {
    p.giveSite();
    p.chooseType(FacilityType::Trench);
    ASSERT_THAT(shownPanels(), ElementsAre(4));
    // The fields' coefficient is emptied without a re-selection.
    p.paste(w.txtSoucFiltrace, "");
    ASSERT_THAT(shownPanels(), ElementsAre(4));
    p.desk.take();
    p.click(w.optSelType[1]);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoFiltration));
    EXPECT_EQ(focusRequests(), 1);
    EXPECT_THAT(shownPanels(), ElementsAre(4));
    EXPECT_EQ(w.TypeGroup, 0);
    EXPECT_EQ(w.SelectedType, FacilityType::Shaft);
    EXPECT_TRUE(w.cboSelType.enabled()) << "enabled before and not touched";
    EXPECT_THAT(w.cboSelType.items(), ElementsAre("Vsakovací nádrže"));
    EXPECT_EQ(w.cboSelType.position(), -1);
}

TEST_F(TypeSelectionTest, AfterARefusalDecentralisedWorksAsEver) {
    p.tab(kTabDesign);
    p.click(w.optSelType[1]);
    p.click(w.optSelType[0]);
    EXPECT_EQ(w.cboSelType.items().size(), 6U);
    EXPECT_EQ(w.SelectedType, FacilityType::None);
    EXPECT_TRUE(w.cboSelType.enabled());
}

TEST_F(TypeSelectionTest, TheEntryOfARefusedCentralisedChoiceCountsForTheFormerGroup) {
    p.giveSite();
    p.chooseType(FacilityType::Trench);
    p.paste(w.txtSoucFiltrace, "");
    p.click(w.optSelType[1]);
    p.select(w.cboSelType, 0);
    EXPECT_EQ(w.SelectedType, FacilityType::None) << "position 0 of the decentralised group";
    EXPECT_THAT(shownPanels(), IsEmpty());
}

TEST_F(TypeSelectionTest, CentralisedWithAreaAndFiltrationShowsTheTank) {
    p.giveSite();
    p.tab(kTabDesign);
    p.desk.take();
    p.click(w.optSelType[1]);
    EXPECT_THAT(p.desk.lines, IsEmpty());
    EXPECT_THAT(w.cboSelType.items(), ElementsAre("Vsakovací nádrže"));
    EXPECT_EQ(w.cboSelType.position(), 0);
    EXPECT_TRUE(w.cboSelType.enabled());
    EXPECT_EQ(w.TypeGroup, 1);
    EXPECT_EQ(w.SelectedType, FacilityType::Tank);
    EXPECT_THAT(shownPanels(), ElementsAre(6));
    EXPECT_TRUE(w.optSelTypPudy5[0].selected())
        << "while the number is still 5, clearing the results selects the shaft's variant";
}

TEST_F(TypeSelectionTest, NegativeAreaOrFiltrationIsRefusedAsMissing) {
    p.giveArea("-100");
    p.tab(kTabDesign);
    p.desk.take();
    p.click(w.optSelType[1]);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoArea));
    p.giveArea("500");
    p.desk.take();
    p.paste(w.txtSoucFiltrace, "-1");
    p.click(w.optSelType[1]);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoFiltration));
}

TEST_F(TypeSelectionTest, EachTypeShowsItsPanelAtThePlaceOfTheFirst) {
    p.giveSite();
    for (const FacilityType type : {FacilityType::Surface, FacilityType::Swale, FacilityType::SwaleTrench,
                                    FacilityType::Trench, FacilityType::Shaft}) {
        p.chooseType(type);
        EXPECT_EQ(w.SelectedType, type);
        EXPECT_THAT(shownPanels(), ElementsAre(static_cast<int>(type)));
        EXPECT_EQ(w.picResults[type].left(), w.picResults[1].left());
        EXPECT_EQ(w.picResults[type].top(), w.picResults[1].top());
    }
    p.select(w.cboSelType, 0);
    EXPECT_THAT(shownPanels(), IsEmpty());
    EXPECT_EQ(w.SelectedType, FacilityType::None);
}

TEST_F(TypeSelectionTest, ThePanelsAreHiddenInAscendingOrder) {
    p.giveSite();
    p.tab(kTabDesign);
    p.click(w.optSelType[0]);
    std::vector<int> order;
    w.picResults.forEach([&](int type, platform::Panel& panel) {
        panel.observe([&order, &panel, type](platform::Aspect aspect) {
            if (aspect == platform::Aspect::Visible) {
                order.push_back(panel.visible() ? 10 + type : type);
            }
        });
    });
    p.select(w.cboSelType, 4);
    EXPECT_THAT(order, ElementsAre(1, 2, 3, 4, 5, 6, 14));
}

TEST_F(TypeSelectionTest, EnteringTheListAsksForAreaThenFiltration) {
    p.tab(kTabDesign);
    p.click(w.optSelType[0]);
    p.user.focus(w.cboSelType);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoArea));
    EXPECT_EQ(focusRequests(), 0);
    p.giveArea("100");
    p.desk.take();
    p.user.focus(w.cboSelType);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoFiltration));
    EXPECT_EQ(focusRequests(), 1);
    p.paste(w.txtSoucFiltrace, "1e-4");
    p.user.focus(w.cboSelType);
    EXPECT_THAT(p.desk.take(), IsEmpty());
}

TEST_F(TypeSelectionTest, NothingElseIsBlockedWithoutAnArea) {
    p.chooseType(FacilityType::Trench);
    EXPECT_EQ(w.SelectedType, FacilityType::Trench);
    EXPECT_THAT(shownPanels(), ElementsAre(4));
}

TEST_F(TypeSelectionTest, ThreeGroupsShareOneSoilVariant) {
    p.giveSite();
    p.chooseType(FacilityType::SwaleTrench);
    EXPECT_TRUE(w.optSelTypPudy3[0].selected()) << "cleared, then selected again as the variant in use";
    p.click(w.optSelTypPudy3[1]);
    EXPECT_EQ(w.SoilVariant, 1);
    EXPECT_EQ(w.txtVsakPlocha[3].text(), "200.0") << "a fifth of 1000 m2";
    p.select(w.cboSelType, static_cast<int>(FacilityType::Swale));
    EXPECT_EQ(w.SoilVariant, 1) << "not changed by clearing the first option";
    EXPECT_FALSE(w.optSelTypPudy2[0].selected());
    EXPECT_TRUE(w.optSelTypPudy2[1].selected());
    p.select(w.cboSelType, static_cast<int>(FacilityType::Shaft));
    EXPECT_TRUE(w.optSelTypPudy5[1].selected());
    EXPECT_TRUE(w.txtVyskaPiskVrstvy.enabled());
}

TEST_F(TypeSelectionTest, ChoosingAGroupKeepsTheSoilVariant) {
    p.giveSite();
    p.chooseType(FacilityType::Swale);
    p.click(w.optSelTypPudy2[1]);
    p.click(w.optSelType[0]);
    EXPECT_EQ(w.SoilVariant, 1);
    p.click(w.optSelType[1]);
    EXPECT_EQ(w.SoilVariant, 1);
    EXPECT_TRUE(w.optSelTypPudy5[1].selected());
}

TEST_F(TypeSelectionTest, SoilOptionOfTheSwaleComputesAtOnce) {
    p.giveSite();
    p.chooseType(FacilityType::Swale);
    EXPECT_EQ(w.txtVsakPlocha[2].text(), "100.0") << "a tenth of 1000 m2";
    p.click(w.optSelTypPudy2[1]);
    EXPECT_EQ(w.txtVsakPlocha[2].text(), "200.0");
    EXPECT_NE(w.txtObjAkum[2].text(), "") << "the design follows";
}

TEST_F(TypeSelectionTest, ShaftVariantSwitchesTheSandLayerAndKeepsItsText) {
    p.giveSite();
    p.chooseType(FacilityType::Shaft);
    p.click(w.optSelTypPudy5[1]);
    EXPECT_EQ(w.SoilVariant, 1);
    EXPECT_TRUE(w.txtVyskaPiskVrstvy.enabled());
    EXPECT_FALSE(w.txtVyskaPiskVrstvy.greyed());
    p.type(w.txtVyskaPiskVrstvy, "0.4");
    p.click(w.optSelTypPudy5[0]);
    EXPECT_EQ(w.SoilVariant, 0);
    EXPECT_FALSE(w.txtVyskaPiskVrstvy.enabled());
    EXPECT_TRUE(w.txtVyskaPiskVrstvy.greyed());
    EXPECT_EQ(w.txtVyskaPiskVrstvy.text(), "0.4");
    EXPECT_EQ(v.txtVyskaPiskVrstvy, 0.4F);
    EXPECT_EQ(w.txtHloubkaSachty.text(), "") << "no calculation runs";
}

TEST_F(TypeSelectionTest, DrainShowsItsSubPanelHigherThanEditingDoes) {
    p.giveSite();
    p.chooseType(FacilityType::Trench);
    p.click(w.chkSelPretok[4]);
    EXPECT_TRUE(w.picPretokSkrOdtok[4].visible());
    EXPECT_EQ(w.picPretokSkrOdtok[4].left(), 0);
    EXPECT_EQ(w.picPretokSkrOdtok[4].top(), 2000);
    EXPECT_TRUE(w.cmdEdit[4].enabled());
    p.click(w.chkSelPretok[4]);
    EXPECT_FALSE(w.picPretokSkrOdtok[4].visible());
    EXPECT_FALSE(w.cmdEdit[4].enabled());
    p.click(w.chkSelPretok[4]);
    p.click(w.cmdEdit[4]);
    EXPECT_EQ(w.picPretokSkrOdtok[4].top(), 3000);
    p.click(w.chkSelPretok[4]);
    p.click(w.chkSelPretok[4]);
    EXPECT_EQ(w.picPretokSkrOdtok[4].top(), 2000);
    EXPECT_FALSE(w.picPretokSkrOdtok[3].visible());
}

TEST_F(TypeSelectionTest, OverflowShowsItsSubPanelWhereEditingDoes) {
    p.giveSite();
    p.chooseType(FacilityType::SwaleTrench);
    p.click(w.chkSelPretok[3]);
    EXPECT_TRUE(w.picPretokSkrOdtok[3].visible());
    EXPECT_EQ(w.picPretokSkrOdtok[3].top(), 3000);
    EXPECT_TRUE(w.cmdEdit[3].enabled());
    w.picPretokSkrOdtok[3].hide();
    p.click(w.cmdEdit[3]);
    EXPECT_TRUE(w.picPretokSkrOdtok[3].visible());
    EXPECT_EQ(w.picPretokSkrOdtok[3].top(), 3000);
    EXPECT_EQ(v.CestaDatabaze, p.folder.file("mero.mdb")) << "from the dialogs, not from editing";
}

TEST_F(TypeSelectionTest, TickingClearsTheResultsOfTheType) {
    p.giveSite();
    p.chooseType(FacilityType::Trench);
    w.txtObjAkum[4].setText("12.0");
    w.txtDelkaRyhy[4].setText("5.0");
    w.txtVsakPlocha[4].setText("7.0");
    p.click(w.chkSelPretok[4]);
    EXPECT_EQ(w.txtObjAkum[4].text(), "");
    EXPECT_EQ(w.txtDelkaRyhy[4].text(), "");
    EXPECT_EQ(w.txtVsakPlocha[4].text(), "");
}

}  // namespace
}  // namespace mero::forms
