// SPDX-License-Identifier: MIT
// The project's input fields in the running program: what is stored, what is derived, what is recomputed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using platform::Key;
using platform::TextBox;
using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoArea = "critical: Zadejte nepropustnou odvodňovanou plochu";

struct InputsTest : testing::Test {
    /// The centralised group was chosen and then the area taken away: from now on every run of the
    /// re-selection shows the message of the missing area once.
    void makeRebuildsVisible() {
        p.giveSite();
        p.tab(kTabDesign);
        p.click(w.optSelType[1]);
        p.tab(kTabInputs);
        p.takeAreaAway();
        p.desk.take();
    }
    int rebuilds() {
        const int count = p.desk.count(kNoArea);
        EXPECT_EQ(count, static_cast<int>(p.desk.take().size()));
        return count;
    }

    TestProgram p;
    frmCalc& w = p.window();
    const data::modPublicVariables& v = p.values();
};

TEST_F(InputsTest, FieldsOpenWithTheirDefaults) {
    for (const int type : {1, 2, 3, 4, 5, 6}) {
        EXPECT_EQ(w.txtSoucBezp[type].text(), "1.2") << type;
    }
    EXPECT_EQ(w.txtPorVyplne[3].text(), "0.35");
    EXPECT_EQ(w.txtPorVyplne[4].text(), "") << "empty, although the stored value is the default";
    EXPECT_EQ(v.txtPorVyplne, 0.35F);
    EXPECT_EQ(w.txtPocetPotrubi[3].text(), "1");
    EXPECT_EQ(w.txtPocetPotrubi[4].text(), "1");
    EXPECT_EQ(w.txtMinPrusakDraha.text(), "1.5");
    EXPECT_EQ(w.txtSachtyCount.text(), "1");
    for (const TextBox* box :
         {&w.txtHPV, &w.txtSoucFiltrace, &w.txtOdvodNepPlocha, &w.txtSelIntDeste, &w.txtSelDTrvDeste,
          &w.txtOdtokDoVsak, &w.txtProjName, &w.txtNezamrzHlPritok}) {
        EXPECT_EQ(box->text(), "") << box->name();
    }
}

TEST_F(InputsTest, TextsAreStoredAsTheyAre) {
    const std::vector<std::pair<TextBox*, const std::string*>> fields{
        {&w.txtProjName, &v.txtProjName},
        {&w.txtProjektant, &v.txtProjektant},
        {&w.txtMistoAkce, &v.txtMistoAkce},
        {&w.txtInvestor, &v.txtInvestor},
        {&w.txtTypPudyPodlozi, &v.txtTypPudyPodlozi}};
    for (const auto& [box, stored] : fields) {
        const std::string text =
            "  <b>\"Žluťoučký\" & 'kůň'</b> 🌧️ " + std::string(300, 'x') + " ";
        p.paste(*box, text);
        EXPECT_EQ(*stored, text) << box->name();
        p.paste(*box, "");
        EXPECT_EQ(*stored, "") << box->name();
    }
    p.type(w.txtDetails, "první\ndruhý");
    EXPECT_EQ(v.txtDetails, "první\r\ndruhý");
    EXPECT_THAT(p.desk.lines, IsEmpty());
}

TEST_F(InputsTest, NumberFieldsStoreAtEveryKey) {
    const std::vector<std::pair<TextBox*, const float*>> fields{
        {&w.txtHPV, &v.txtHPV},
        {&w.txtMinPrusakDraha, &v.txtMinPrusakDraha},
        {&w.txtNezamrzHlPritok, &v.txtNezamrzHlPritok},
        {&w.txtSpecMeroIntenz, &v.txtSpecMeroIntenz},
        {&w.txtDelkaDnaNadrz, &v.txtDelkaDnaNadrz},
        {&w.txtSirkaDnaNadrz, &v.txtSirkaDnaNadrz},
        {&w.txtHloubkaNadrz, &v.txtHloubkaNadrz},
        {&w.txtSklonSvahuNadrz, &v.txtSklonSvahuNadrz},
        {&w.txtVyskaPiskVrstvy, &v.txtVyskaPiskVrstvy},
        {&w.txtVyskaFiltrVrstvy, &v.txtVyskaFiltrVrstvy},
        {&w.txtPorVyplne[3], &v.txtPorVyplne},
        {&w.txtPorVyplne[4], &v.txtPorVyplne},
        {&w.txtSirkaRyhy[3], &v.txtSirkaRyhy},
        {&w.txtSirkaRyhy[4], &v.txtSirkaRyhy},
        {&w.txtVyskaRyhy[3], &v.txtVyskaRyhy},
        {&w.txtVyskaRyhy[4], &v.txtVyskaRyhy},
        {&w.txtPrumTroubVnej[3], &v.txtPrumTroubVnej},
        {&w.txtPrumTroubVnej[4], &v.txtPrumTroubVnej},
        {&w.txtPrumTroubVnit[3], &v.txtPrumTroubVnit},
        {&w.txtPrumTroubVnit[4], &v.txtPrumTroubVnit},
        {&w.txtSpecDrenOdtok[3], &v.txtSpecDrenOdtok},
        {&w.txtVystupPlocha[4], &v.txtVystupPlocha},
        {&w.txtVystupRychlost[4], &v.txtVystupRychlost},
        {&w.txtVsakPlocha[1], &v.txtVsakPlocha},
        {&w.txtVsakPlocha[2], &v.txtVsakPlocha},
        {&w.txtVsakPlocha[3], &v.txtVsakPlocha},
        {&w.txtVsakPlocha[4], &v.txtVsakPlocha},
        {&w.txtVsakPlocha[5], &v.txtVsakPlocha},
        {&w.txtSoucBezp[1], &v.txtSoucBezp},
        {&w.txtSoucBezp[6], &v.txtSoucBezp},
    };
    for (const auto& [box, stored] : fields) {
        p.paste(*box, "2");
        EXPECT_EQ(*stored, 2.0F) << box->name();
        p.paste(*box, "");
        EXPECT_EQ(*stored, 0.0F) << box->name();
        p.type(*box, "3.5");
        EXPECT_EQ(*stored, 3.5F) << box->name();
        p.type(*box, ",");
        EXPECT_EQ(box->text(), "") << box->name();
        EXPECT_EQ(*stored, 0.0F) << box->name();
        p.paste(*box, "4.25");
        p.paste(*box, "1e300");
        EXPECT_EQ(*stored, 4.25F) << box->name() << ": an overflow is ignored";
    }
    EXPECT_THAT(p.desk.lines, IsEmpty()) << "no field rule shows a message";
}

TEST_F(InputsTest, OneCommaWipesTheGroundwaterLevel) {
    p.type(w.txtHPV, "1");
    EXPECT_EQ(v.txtHPV, 1.0F);
    p.type(w.txtHPV, ",");
    EXPECT_EQ(w.txtHPV.text(), "");
    EXPECT_EQ(v.txtHPV, 0.0F);
    p.type(w.txtHPV, "5");
    EXPECT_EQ(w.txtHPV.text(), "5") << "the next key starts anew";
}

TEST_F(InputsTest, OneMemberOfAnArrayIsStoredTheOtherKeepsItsText) {
    p.paste(w.txtPorVyplne[4], "0.4");
    EXPECT_EQ(v.txtPorVyplne, 0.4F);
    EXPECT_EQ(w.txtPorVyplne[3].text(), "0.35");
}

TEST_F(InputsTest, TheUnguardedFieldsReportWhatTheyCannotConvert) {
    for (const int type : {3, 4}) {
        p.erase(w.txtPocetPotrubi[type], 1);
        EXPECT_THAT(p.desk.take(), ElementsAre("error 13")) << "an empty text is no number";
        EXPECT_EQ(v.txtPocetPotrubi, 1.0F);
        p.type(w.txtPocetPotrubi[type], "x");
        EXPECT_THAT(p.desk.take(), ElementsAre("error 13"));
        EXPECT_EQ(w.txtPocetPotrubi[type].text(), "x") << "nothing is emptied";
        p.paste(w.txtPocetPotrubi[type], "1e39");
        EXPECT_THAT(p.desk.take(), ElementsAre("error 6"));
        p.paste(w.txtPocetPotrubi[type], "1");
    }
    p.paste(w.txtPotrHloubkaZahl, "2.5");
    EXPECT_EQ(v.txtPotrHloubkaZahl, 2.5F);
    p.paste(w.txtPotrHloubkaZahl, "");
    p.paste(w.txtPotrHloubkaZahl, "hluboko");
    EXPECT_THAT(p.desk.take(), ElementsAre("error 13", "error 13"));
    EXPECT_EQ(v.txtPotrHloubkaZahl, 2.5F);
    EXPECT_FALSE(p.program.ended());
}

TEST_F(InputsTest, ShaftCountIsTypedOrSteppedFromTheStoredCount) {
    using Direction = platform::UpDown::Direction;
    p.paste(w.txtSachtyCount, "2.5");
    EXPECT_EQ(v.txtSachtyCount, 2);
    p.user.spin(w.updSacht, Direction::Up);
    EXPECT_EQ(w.txtSachtyCount.text(), "3");
    EXPECT_EQ(v.txtSachtyCount, 3);
    p.paste(w.txtSachtyCount, "1");
    p.user.spin(w.updSacht, Direction::Down);
    EXPECT_EQ(w.txtSachtyCount.text(), "1");
    p.paste(w.txtSachtyCount, "100");
    p.user.spin(w.updSacht, Direction::Up);
    EXPECT_EQ(w.txtSachtyCount.text(), "100");
    p.paste(w.txtSachtyCount, "");
    p.user.spin(w.updSacht, Direction::Up);
    EXPECT_EQ(w.txtSachtyCount.text(), "1");
    p.paste(w.txtSachtyCount, "30000");
    p.user.spin(w.updSacht, Direction::Down);
    EXPECT_EQ(w.txtSachtyCount.text(), "100");
    p.paste(w.txtSachtyCount, "32767");
    p.user.spin(w.updSacht, Direction::Up);
    EXPECT_EQ(w.txtSachtyCount.text(), "100") << "no 16-bit overflow on the way";
}

TEST_F(InputsTest, FiltrationIsTypedKeyByKeyAndFormattedOnLeaving) {
    std::vector<float> stored;
    for (const char* key : {"1", "e", "-", "5"}) {
        p.type(w.txtSoucFiltrace, key);
        stored.push_back(v.txtSoucFiltrace);
    }
    EXPECT_THAT(stored, ElementsAre(1.0F, 1.0F, 1.0F, 1e-5F));
    p.leave(w.txtSoucFiltrace);
    EXPECT_EQ(w.txtSoucFiltrace.text(), "1.0E-05");
    p.erase(w.txtSoucFiltrace, 2);
    EXPECT_EQ(w.txtSoucFiltrace.text(), "") << "1.0E- has no small e";
    EXPECT_EQ(v.txtSoucFiltrace, 0.0F);
}

TEST_F(InputsTest, TheSwalesFiltrationFollowsTheSameRuleForEachMember) {
    for (const int type : {3, 5}) {
        p.type(w.txtSoucFiltrPruleh[type], "2e-4");
        EXPECT_EQ(v.txtSoucFiltrPruleh, 2e-4F);
        p.leave(w.txtSoucFiltrPruleh[type]);
        EXPECT_EQ(w.txtSoucFiltrPruleh[type].text(), "2.0E-04");
        p.paste(w.txtSoucFiltrPruleh[type], "x");
        EXPECT_EQ(w.txtSoucFiltrPruleh[type].text(), "");
        EXPECT_EQ(v.txtSoucFiltrPruleh, 0.0F);
    }
}

TEST_F(InputsTest, FiltrationReselectsTheTypeOnceForEveryNonEmptyText) {
    makeRebuildsVisible();
    p.paste(w.txtSoucFiltrace, "");
    EXPECT_EQ(rebuilds(), 0);
    p.type(w.txtSoucFiltrace, "1e-5");
    EXPECT_EQ(rebuilds(), 4);
    p.leave(w.txtSoucFiltrace);
    EXPECT_EQ(rebuilds(), 1);
    p.paste(w.txtSoucFiltrace, "x");
    EXPECT_EQ(w.txtSoucFiltrace.text(), "");
    EXPECT_EQ(rebuilds(), 1) << "from the typed text, not again for the emptying";
    p.leave(w.txtSoucFiltrace);
    EXPECT_EQ(rebuilds(), 0);
}

TEST_F(InputsTest, TheSwalesFiltrationDoesNotReselect) {
    makeRebuildsVisible();
    p.paste(w.txtSoucFiltrPruleh[3], "1e-5");
    p.leave(w.txtSoucFiltrPruleh[3]);
    EXPECT_EQ(rebuilds(), 0);
}

TEST_F(InputsTest, RainAndAreaFieldsReselectWithoutReadingTheirText) {
    makeRebuildsVisible();
    const float picked = v.VybranaIntenzita;
    p.paste(w.txtSelIntDeste, "99999");
    EXPECT_EQ(v.VybranaIntenzita, picked);
    EXPECT_EQ(rebuilds(), 1);
    p.paste(w.txtSelDTrvDeste, "7");
    EXPECT_EQ(rebuilds(), 1);
    p.paste(w.txtOdvodNepPlocha, "nesmysl");
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "nesmysl");
    EXPECT_EQ(v.RedukovanaPlocha, 0.0F);
    EXPECT_EQ(rebuilds(), 1);
    p.paste(w.txtOdtokDoVsak, "5");
    EXPECT_EQ(rebuilds(), 0) << "the inflow has no change rule";
}

TEST_F(InputsTest, TheInflowWaitsForARain) {
    p.giveArea("1000");
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "1000");
    EXPECT_EQ(w.txtOdtokDoVsak.text(), "") << "no inflow before there is a rain";
    p.giveRain("142");
    EXPECT_EQ(w.txtSelIntDeste.text(), "142");
    EXPECT_EQ(w.txtSelDTrvDeste.text(), "15");
    EXPECT_EQ(w.txtOdtokDoVsak.text(), "14.2") << "1e-4 x 1000 x 142";
    EXPECT_FLOAT_EQ(v.txtOdtokDoVsak, 14.2F);
}

TEST_F(InputsTest, ARainWithoutAreaGivesNoInflowAndALaterAreaDoes) {
    p.giveRain("142");
    EXPECT_EQ(w.txtOdtokDoVsak.text(), "0.0");
    p.giveArea("1500000");
    EXPECT_EQ(w.txtOdtokDoVsak.text(), "21 300.0") << "grouped as everywhere";
}

TEST_F(InputsTest, EmptyingTheAreaEmptiesTheInflow) {
    p.giveSite();
    p.takeAreaAway();
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "");
    EXPECT_EQ(w.txtOdtokDoVsak.text(), "");
    EXPECT_EQ(v.txtOdtokDoVsak, 0.0F) << "recomputed before the text was emptied";
}

TEST_F(InputsTest, TheSafetyFactorRecomputesAtEveryNonEmptyText) {
    p.giveSite();
    p.chooseType(FacilityType::Surface);
    int computed = 0;
    w.txtVsakPlocha[1].observe([&](platform::Aspect) { ++computed; });
    p.erase(w.txtSoucBezp[1], 3);
    EXPECT_EQ(computed, 2) << "1. and 1, not the empty text";
    EXPECT_EQ(v.txtSoucBezp, 0.0F);
    computed = 0;
    p.type(w.txtSoucBezp[1], "1.5");
    EXPECT_EQ(computed, 3) << "1 and 1. and 1.5";
    computed = 0;
    p.type(w.txtSoucBezp[1], "x");
    EXPECT_EQ(w.txtSoucBezp[1].text(), "");
    EXPECT_EQ(computed, 1) << "also a text that failed to convert, once";
    EXPECT_THAT(p.desk.take(), testing::Not(testing::Contains("error 13")));
}

}  // namespace
}  // namespace mero::forms
