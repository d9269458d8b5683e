// SPDX-License-Identifier: MIT
// The drained-area dialog: choosing a surface, entering partial areas, OK and Cancel.
#include "forms/dialogs/frm_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using platform::Key;
using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoCoefficient = "exclamation [Chyba]: Vyberte odtokový součinitel";
constexpr const char* kNoArea = "exclamation [Chyba]: Zadejte dílčí plochu";

struct AreaDialogTest : testing::Test {
    AreaDialogTest() {
        p.click(w.cmdEdit[1]);
        p.desk.take();
    }
    void expectListsOfLength(int length) {
        EXPECT_EQ(v.DilciPlocha.length(), length);
        EXPECT_EQ(v.OdtokovySoucinitel.length(), length);
        EXPECT_EQ(v.TypPovrchu.length(), length);
    }
    void enter(const std::string& coefficient, const std::string& area) {
        p.paste(d.txtSoucinitel, coefficient);
        p.paste(d.txtPlocha, area);
        p.click(d.cmdZapsat);
    }

    TestProgram p;
    frmCalc& w = p.window();
    frmDialog& d = p.areaDialog();
    platform::Grid& surfaces = d.fgSoucPovrchOdtok;
    platform::Grid& entries = d.fgZapisTab;
    const data::modPublicVariables& v = p.values();
};

TEST_F(AreaDialogTest, OpensWithTheSurfacesAndWithoutEntries) {
    ASSERT_EQ(surfaces.dataRows(), 19);
    EXPECT_THAT(surfaces.rows()[0],
                ElementsAre("Typ plochy", "Způsob zpevnění povrchu", "Součinitel", "Výběr"));
    EXPECT_THAT(surfaces.rows()[1],
                ElementsAre("šikmé střechy", "kov, sklo, břidlice, vláknocementová krytina", "0.95", ""));
    EXPECT_THAT(surfaces.rows()[2],
                ElementsAre("šikmé střechy", "pálená krytina, střešní lepenky", "0.90", ""));
    EXPECT_EQ(surfaces.rows()[18][2], "0.10");
    EXPECT_TRUE(surfaces.columns()[0].merges_equal_neighbours);
    EXPECT_EQ(surfaces.columns()[2].cells, platform::Alignment::Centre);
    EXPECT_EQ(surfaces.columns()[3].cells, platform::Alignment::Centre);
    EXPECT_FALSE(entries.visible());
    EXPECT_FALSE(d.cmdDelete.enabled());
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "");
}

TEST_F(AreaDialogTest, PickingASurfaceShowsItsCoefficientAndWantsTheArea) {
    int focus = 0;
    d.txtPlocha.observe([&](platform::Aspect aspect) { focus += aspect == platform::Aspect::Focus ? 1 : 0; });
    p.type(d.txtPlocha, "77");
    p.cell(surfaces, 9, 3);
    EXPECT_EQ(surfaces.mark({9, 3}), std::optional(true));
    EXPECT_EQ(d.txtSoucinitel.text(), "0.75");
    EXPECT_EQ(d.txtPlocha.text(), "");
    EXPECT_EQ(focus, 1);
}

TEST_F(AreaDialogTest, OtherColumnsPickNothing) {
    for (const int column : {0, 1, 2}) {
        p.cell(surfaces, 9, column);
        EXPECT_EQ(d.txtSoucinitel.text(), "");
        EXPECT_EQ(surfaces.mark({9, column}), std::nullopt);
    }
}

TEST_F(AreaDialogTest, AnEntryByEnterOrByTheButton) {
    p.cell(surfaces, 1, 3);
    p.type(d.txtPlocha, "1000");
    p.press(d.txtPlocha, Key::Enter);
    p.cell(surfaces, 11, 3);
    p.type(d.txtPlocha, "40.5");
    p.click(d.cmdZapsat);
    EXPECT_THAT(
        entries.rows(),
        ElementsAre(ElementsAre("ID", "Dílčí plocha", "Odtokový součinitel", "Typ povrchu", "Výběr"),
                    ElementsAre("1", "1 000", "0.95", "kov, sklo, břidlice, vláknocementová krytina", ""),
                    ElementsAre("2", "41", "0.50", "dlažba  nespárovaná", "")));
    EXPECT_TRUE(entries.visible());
    expectListsOfLength(3);
    // 0.95 * 1000 + 0.5 * 40.5
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "970.25");
    EXPECT_EQ(v.RedukovanaPlocha, 970.25F);
    EXPECT_THAT(p.desk.lines, IsEmpty());
}

TEST_F(AreaDialogTest, EscapeInTheAreaBoxEntersNothing) {
    p.cell(surfaces, 1, 3);
    p.type(d.txtPlocha, "10");
    p.press(d.txtPlocha, Key::Escape);
    expectListsOfLength(1);
}

TEST_F(AreaDialogTest, TheAreaStaysAndEnterEntersItOnceMore) {
    p.cell(surfaces, 1, 3);
    p.type(d.txtPlocha, "10");
    p.press(d.txtPlocha, Key::Enter);
    p.press(d.txtPlocha, Key::Enter);
    EXPECT_EQ(d.txtPlocha.text(), "10");
    EXPECT_EQ(entries.dataRows(), 2);
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "19");
}

TEST_F(AreaDialogTest, TwoEntriesGiveOneHundred) {
    enter("0.9", "100");
    enter("0.2", "50");
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "100");
    EXPECT_EQ(v.RedukovanaPlocha, 100.0F);
}

TEST_F(AreaDialogTest, AnotherCellOfTheSurfacesClearsTheCoefficient) {
    p.cell(surfaces, 9, 3);
    p.cell(surfaces, 9, 1);
    EXPECT_EQ(surfaces.mark({9, 3}), std::optional(false));
    EXPECT_EQ(d.txtSoucinitel.text(), "0.75") << "the box still shows it";
    p.type(d.txtPlocha, "10");
    p.press(d.txtPlocha, Key::Enter);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoCoefficient));
    expectListsOfLength(1);
    p.paste(d.txtSoucinitel, "0.5");
    p.press(d.txtPlocha, Key::Enter);
    EXPECT_THAT(p.desk.take(), IsEmpty());
    EXPECT_EQ(v.TypPovrchu(1), "dlažba se zalitými sparami (spárovaná)")
        << "the description picked last stays";
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "5");
}

TEST_F(AreaDialogTest, TheSameCellClickedAgainStaysChosen) {
    p.cell(surfaces, 9, 3);
    p.cell(surfaces, 9, 3);
    p.type(d.txtPlocha, "10");
    p.press(d.txtPlocha, Key::Enter);
    EXPECT_EQ(entries.dataRows(), 1);
}

TEST_F(AreaDialogTest, ACoefficientByHandHasNoDescription) {
    enter("0.33", "100");
    EXPECT_EQ(v.TypPovrchu(1), "");
    EXPECT_EQ(v.OdtokovySoucinitel(1), 0.33F);
    EXPECT_EQ(entries.rows()[1][3], "");
}

TEST_F(AreaDialogTest, MissingCoefficientIsToldBeforeMissingArea) {
    p.click(d.cmdZapsat);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoCoefficient));
    p.paste(d.txtSoucinitel, "0.5");
    p.click(d.cmdZapsat);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoArea));
    for (const char* text : {"0", "x", "-", " ", "m2", "0,5"}) {
        p.paste(d.txtPlocha, text);
        p.press(d.txtPlocha, Key::Enter);
        EXPECT_THAT(p.desk.take(), ElementsAre(kNoArea)) << text;
    }
    expectListsOfLength(1);
    EXPECT_FALSE(entries.visible());
}

TEST_F(AreaDialogTest, NumbersAreReadAsFarAsTheyGo) {
    enter("0.5x", "100 m2");
    EXPECT_EQ(v.OdtokovySoucinitel(1), 0.5F);
    EXPECT_EQ(v.DilciPlocha(1), 100.0F);
    enter("1", "1 234,5");
    EXPECT_EQ(v.DilciPlocha(2), 1.0F) << "no grouping in the lenient reading";
    enter("1", "2e2");
    EXPECT_EQ(v.DilciPlocha(3), 200.0F);
}

TEST_F(AreaDialogTest, NegativeAreasAndLargeCoefficientsAreAccepted) {
    enter("2", "100");
    enter("1", "-50");
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "150");
    enter("-1", "150");
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "0") << "the text of the result, not emptied";
    EXPECT_TRUE(entries.visible());
}

TEST_F(AreaDialogTest, AnOverflowKeepsTheListsEquallyLong) {
    enter("0.5", "100");
    p.desk.take();
    enter("0.5", "1e39");
    EXPECT_THAT(p.desk.take(), ElementsAre("error 6"));
    expectListsOfLength(2);
    enter("0.5", std::string(400, '9'));
    EXPECT_THAT(p.desk.take(), ElementsAre("error 6"));
    expectListsOfLength(2);
    enter("1e39", "5");
    EXPECT_THAT(p.desk.take(), ElementsAre("error 6")) << "the coefficient stays 0.5";
    expectListsOfLength(3);
    EXPECT_EQ(v.OdtokovySoucinitel(2), 0.5F);
    EXPECT_FALSE(p.program.ended());
}

TEST_F(AreaDialogTest, ASumThatOverflowsIsReportedAndTheListsStayEquallyLong) {
    enter("1", "3e38");
    enter("1", "3e38");
    EXPECT_THAT(p.desk.take(), ElementsAre("error 6"));
    expectListsOfLength(3);
    EXPECT_FALSE(p.program.ended());
    p.click(d.cmdDeleteAll);
    expectListsOfLength(1);
}

TEST_F(AreaDialogTest, OkWritesTheSumIntoTheMainWindow) {
    enter("0.9", "100");
    p.click(d.OKButton);
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "90");
    EXPECT_FALSE(d.visible());
    EXPECT_TRUE(w.enabled());
    EXPECT_THAT(p.desk.lines, ElementsAre("closed frmDialog"));
}

TEST_F(AreaDialogTest, OkWithANegativeSumWritesIt) {
    enter("1", "-2500000");
    p.click(d.OKButton);
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "-2500000") << "general texts are not grouped";
}

TEST_F(AreaDialogTest, OkWithoutAreaEmptiesBothFields) {
    p.click(d.OKButton);
    p.giveSite();
    ASSERT_EQ(w.txtOdtokDoVsak.text(), "15.0");
    p.takeAreaAway();
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "");
    EXPECT_EQ(w.txtOdtokDoVsak.text(), "");
}

TEST_F(AreaDialogTest, CancelUndoesNothingAndWritesNothing) {
    enter("1", "100");
    p.click(d.OKButton);
    p.click(w.cmdEdit[1]);
    enter("1", "200");
    p.desk.take();
    p.click(d.CancelButton);
    EXPECT_THAT(p.desk.lines, ElementsAre("closed frmDialog"));
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "100");
    EXPECT_EQ(v.RedukovanaPlocha, 300.0F) << "shared value and field differ on purpose";
    p.click(w.cmdEdit[1]);
    EXPECT_EQ(entries.dataRows(), 2);
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "300");
}

TEST_F(AreaDialogTest, ANewOpeningHasNothingChosen) {
    p.cell(surfaces, 9, 3);
    p.type(d.txtPlocha, "10");
    p.press(d.txtPlocha, Key::Enter);
    p.cell(entries, 1, 4);
    EXPECT_TRUE(d.cmdDelete.enabled());
    p.close(d);
    p.click(w.cmdEdit[1]);
    EXPECT_EQ(d.txtSoucinitel.text(), "");
    EXPECT_EQ(d.txtPlocha.text(), "");
    EXPECT_FALSE(d.cmdDelete.enabled());
    EXPECT_EQ(surfaces.mark({9, 3}), std::nullopt);
    EXPECT_TRUE(entries.visible());
    p.type(d.txtPlocha, "10");
    p.desk.take();
    p.press(d.txtPlocha, Key::Enter);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoCoefficient));
    p.paste(d.txtSoucinitel, "1");
    p.press(d.txtPlocha, Key::Enter);
    EXPECT_EQ(v.TypPovrchu(2), "") << "the description of the former opening is gone";
}

}  // namespace
}  // namespace mero::forms
