// SPDX-License-Identifier: MIT
// The table of entries in the drained-area dialog: marking, editing in the cell, deleting.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using platform::Key;
using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;

struct EntriesTest : testing::Test {
    EntriesTest() {
        p.click(w.cmdEdit[1]);
        for (const char* area : {"100", "200", "300"}) {
            p.paste(d.txtSoucinitel, "0.5");
            p.paste(d.txtPlocha, area);
            p.click(d.cmdZapsat);
        }
        p.desk.take();
    }
    std::vector<std::string> areas() {
        std::vector<std::string> texts;
        for (int row = 1; row <= entries.dataRows(); ++row) {
            texts.push_back(entries.rows()[static_cast<std::size_t>(row)][1]);
        }
        return texts;
    }
    void expectListsOfLength(int length) {
        EXPECT_EQ(v.DilciPlocha.length(), length);
        EXPECT_EQ(v.OdtokovySoucinitel.length(), length);
        EXPECT_EQ(v.TypPovrchu.length(), length);
    }

    TestProgram p;
    frmCalc& w = p.window();
    frmDialog& d = p.areaDialog();
    platform::Grid& entries = d.fgZapisTab;
    const data::modPublicVariables& v = p.values();
};

TEST_F(EntriesTest, EditingTheAreaStoresAtEveryKey) {
    p.cell(entries, 2, 1);
    EXPECT_TRUE(d.txtSChange.onScreen());
    EXPECT_EQ(d.txtSChange.text(), "200");
    p.type(d.txtSChange, "0");
    EXPECT_EQ(v.DilciPlocha(2), 2000.0F);
    EXPECT_EQ(entries.rows()[2][1], "2 000");
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "1200");
    p.paste(d.txtSChange, "12.6");
    EXPECT_EQ(v.DilciPlocha(2), 12.6F);
    EXPECT_EQ(entries.rows()[2][1], "13");
    p.press(d.txtSChange, Key::Escape);
    EXPECT_FALSE(d.txtSChange.visible());
    EXPECT_EQ(v.DilciPlocha(2), 12.6F) << "Escape undoes nothing";
}

TEST_F(EntriesTest, AnEmptyEditorChangesNothing) {
    p.cell(entries, 2, 1);
    p.paste(d.txtSChange, "");
    EXPECT_EQ(v.DilciPlocha(2), 200.0F);
    EXPECT_EQ(entries.rows()[2][1], "200");
    EXPECT_THAT(p.desk.lines, IsEmpty());
}

TEST_F(EntriesTest, ALetterInTheAreaColumnEndsTheProgram) {
    p.cell(entries, 1, 1);
    p.paste(d.txtSChange, "x");
    EXPECT_THAT(p.desk.lines, ElementsAre("error 13 ends", "closed frmCalc", "ended"));
    EXPECT_EQ(p.program.exitStatus(), 1);
    EXPECT_EQ(v.DilciPlocha(1), 100.0F);
}

TEST_F(EntriesTest, ALetterBehindTheAreaEndsTheProgramToo) {
    p.cell(entries, 1, 1);
    p.type(d.txtSChange, "m");
    EXPECT_THAT(p.desk.lines, ElementsAre("error 13 ends", "closed frmCalc", "ended"));
}

TEST_F(EntriesTest, ALetterInTheCoefficientColumnIsIgnored) {
    p.cell(entries, 1, 2);
    EXPECT_EQ(d.txtSChange.text(), "0.5");
    p.paste(d.txtSChange, "x");
    EXPECT_EQ(v.OdtokovySoucinitel(1), 0.5F);
    EXPECT_EQ(entries.rows()[1][2], "0.00") << "what can be read from the text";
    p.paste(d.txtSChange, "0.8x");
    EXPECT_EQ(v.OdtokovySoucinitel(1), 0.5F);
    EXPECT_EQ(entries.rows()[1][2], "0.80");
    p.paste(d.txtSChange, "0.25");
    EXPECT_EQ(v.OdtokovySoucinitel(1), 0.25F);
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "275") << "25 + 100 + 150";
    EXPECT_THAT(p.desk.lines, IsEmpty());
}

TEST_F(EntriesTest, TheSurfacesTextIsFree) {
    p.cell(entries, 3, 3);
    EXPECT_EQ(d.txtSChange.text(), "");
    p.type(d.txtSChange, "dvůr 🌧️ \"A\"");
    EXPECT_EQ(v.TypPovrchu(3), "dvůr 🌧️ \"A\"");
    EXPECT_EQ(entries.rows()[3][3], "dvůr 🌧️ \"A\"");
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "300");
}

TEST_F(EntriesTest, TheIdCannotBeEdited) {
    p.cell(entries, 2, 0);
    EXPECT_FALSE(d.txtSChange.visible());
}

TEST_F(EntriesTest, AClickOnAnotherCellClosesTheEditorFirst) {
    p.cell(entries, 1, 1);
    p.cell(entries, 2, 0);
    EXPECT_FALSE(d.txtSChange.visible());
    p.cell(entries, 1, 1);
    p.cell(entries, 2, 2);
    EXPECT_TRUE(d.txtSChange.visible());
    p.type(d.txtSChange, "5");
    EXPECT_EQ(v.OdtokovySoucinitel(2), 0.55F) << "the later cell is the edited one";
    EXPECT_EQ(v.DilciPlocha(1), 100.0F);
}

TEST_F(EntriesTest, LosingTheFocusClosesTheEditor) {
    p.cell(entries, 1, 1);
    p.leave(d.txtSChange);
    EXPECT_FALSE(d.txtSChange.visible());
}

TEST_F(EntriesTest, AnAreaThatIsEditedToZeroHidesTheEntriesAtTheNextRebuild) {
    p.cell(entries, 1, 1);
    p.paste(d.txtSChange, "0");
    EXPECT_TRUE(entries.visible());
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "250");
    p.cell(entries, 2, 1);
    EXPECT_FALSE(d.txtSChange.visible()) << "no entries: a click does nothing";
    p.close(d);
    p.click(w.cmdEdit[1]);
    EXPECT_FALSE(entries.visible());
    EXPECT_EQ(v.RedukovanaPlocha, 0.0F);
    expectListsOfLength(4);
}

TEST_F(EntriesTest, MarkingEnablesDeleting) {
    p.cell(entries, 2, 4);
    EXPECT_EQ(entries.mark({2, 4}), std::optional(true));
    EXPECT_TRUE(d.cmdDelete.enabled());
    EXPECT_FALSE(d.txtSChange.visible());
}

TEST_F(EntriesTest, DeletingTwiceTakesTheEntryThatMovedUpAsWell) {
    p.cell(entries, 2, 4);
    p.click(d.cmdDelete);
    EXPECT_THAT(areas(), ElementsAre("100", "300"));
    EXPECT_EQ(entries.rows()[2][0], "2") << "numbered anew";
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "200");
    EXPECT_TRUE(d.cmdDelete.enabled());
    p.click(d.cmdDelete);
    EXPECT_THAT(areas(), ElementsAre("100"));
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "50");
    p.click(d.cmdDelete);
    EXPECT_FALSE(entries.visible());
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "");
    EXPECT_EQ(v.RedukovanaPlocha, 0.0F);
    expectListsOfLength(1);
    EXPECT_EQ(v.DilciPlocha(1), 0.0F);
    EXPECT_EQ(v.OdtokovySoucinitel(1), 0.0F);
    EXPECT_EQ(v.TypPovrchu(1), "");
}

TEST_F(EntriesTest, DeletingWithoutAnyEntryLeftDoesNothing) {
    p.cell(entries, 1, 4);
    for (int i = 0; i < 5; ++i) {
        p.click(d.cmdDelete);
    }
    expectListsOfLength(1);
    EXPECT_THAT(p.desk.lines, IsEmpty());
}

TEST_F(EntriesTest, DeletingTheFirstMovesAllUp) {
    p.cell(entries, 1, 4);
    p.click(d.cmdDelete);
    EXPECT_THAT(areas(), ElementsAre("200", "300"));
    expectListsOfLength(3);
    EXPECT_EQ(v.DilciPlocha(3), 0.0F) << "the spare position moved, too";
    EXPECT_EQ(v.OdtokovySoucinitel(3), 0.0F);
}

TEST_F(EntriesTest, DeletingTheLastKeepsTheOthers) {
    p.cell(entries, 3, 4);
    p.click(d.cmdDelete);
    EXPECT_THAT(areas(), ElementsAre("100", "200"));
    expectListsOfLength(3);
    p.paste(d.txtPlocha, "7");
    p.click(d.cmdZapsat);
    EXPECT_THAT(areas(), ElementsAre("100", "200", "7")) << "the spare position is filled afresh";
}

TEST_F(EntriesTest, TheLaterOfTwoMarksIsDeleted) {
    p.cell(entries, 1, 4);
    p.cell(entries, 3, 4);
    p.click(d.cmdDelete);
    EXPECT_THAT(areas(), ElementsAre("100", "200"));
}

TEST_F(EntriesTest, DeletingWhileEditingClosesTheEditor) {
    p.cell(entries, 2, 4);
    p.cell(entries, 3, 1);
    ASSERT_TRUE(d.txtSChange.visible());
    p.click(d.cmdDelete);
    EXPECT_FALSE(d.txtSChange.visible());
    EXPECT_THAT(areas(), ElementsAre("100", "300"));
}

TEST_F(EntriesTest, DeletingAll) {
    p.click(d.cmdDeleteAll);
    EXPECT_FALSE(entries.visible());
    expectListsOfLength(1);
    EXPECT_EQ(d.txtOdvodNepPlocha.text(), "");
    p.click(d.cmdDeleteAll);
    expectListsOfLength(1);
    p.click(d.OKButton);
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "");
}

TEST_F(EntriesTest, TheOnlyEntryDeletedAndConfirmedEmptiesTheMainWindow) {
    p.click(d.OKButton);
    ASSERT_EQ(w.txtOdvodNepPlocha.text(), "300");
    p.click(w.cmdEdit[1]);
    p.cell(entries, 1, 4);
    p.click(d.cmdDelete);
    p.click(d.cmdDelete);
    p.click(d.cmdDelete);
    p.click(d.OKButton);
    EXPECT_EQ(w.txtOdvodNepPlocha.text(), "");
    EXPECT_EQ(w.txtOdtokDoVsak.text(), "");
}

TEST_F(EntriesTest, TheRunningTotalIsRoundedToSingleAfterEveryAddition) {
    // 16777216 + 1 is no Single: each addition of 1 is lost, one of 2 would not be.
    p.click(d.cmdDeleteAll);
    p.paste(d.txtSoucinitel, "1");
    for (const char* area : {"16777216", "1", "1"}) {
        p.paste(d.txtPlocha, area);
        p.click(d.cmdZapsat);
    }
    EXPECT_EQ(v.RedukovanaPlocha, 16777216.0F);
}

}  // namespace
}  // namespace mero::forms
