// SPDX-License-Identifier: MIT
// The design-rain dialog: stations and periodicities, own values, the picked row, confirmation, help.
#include "forms/dialogs/frm_int_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using platform::Key;
using test::kBrno;
using test::TestProgram;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kOwnValues = "(Vlastní hodnoty)";
constexpr const char* kNoIntensities =
    "critical: Nejsou zadány žádné intenzity deště. Vyberte dešťoměrnou stanici, nebo zadejte hodnoty ručně.";

struct RainDialogTest : testing::Test {
    RainDialogTest() {
        p.click(w.cmdEdit[0]);
        p.desk.take();
    }
    std::vector<std::string> column(std::size_t number) {
        std::vector<std::string> texts;
        for (int row = 1; row <= grid.dataRows(); ++row) {
            texts.push_back(grid.rows()[static_cast<std::size_t>(row)][number]);
        }
        return texts;
    }
    /// Types a value into a cell, as own values are typed.
    void edit(int row, int cell_column, const std::string& text) {
        p.cell(grid, row, cell_column);
        p.paste(d.txtSChange, text);
        p.press(d.txtSChange, Key::Enter);
    }
    void reopen() {
        p.close(d);
        p.click(w.cmdEdit[0]);
        p.desk.take();
    }

    TestProgram p;
    frmCalc& w = p.window();
    frmIntDialog& d = p.rainDialog();
    platform::Grid& grid = d.fgIntDeste;
    const data::modPublicVariables& v = p.values();
};

TEST_F(RainDialogTest, OpensWithOwnValuesAndOkDisabled) {
    EXPECT_EQ(d.cboSelStanice.items().size(), 93U);
    EXPECT_EQ(d.cboSelStanice.items()[4], "Brno");
    EXPECT_EQ(d.cboSelStanice.text(), kOwnValues);
    EXPECT_THAT(d.cboSelPeriod.items(), ElementsAre("5", "2", "1", "0.5", "0.2", "0.1", "0.05"));
    EXPECT_EQ(d.cboSelPeriod.position(), -1);
    EXPECT_FALSE(d.cmdOK.enabled());
    EXPECT_EQ(v.VybranaStanice, kOwnValues) << "the selection made by code counts as a choice";
    EXPECT_EQ(v.VybranaPeriodicita, "");
    EXPECT_THAT(grid.rows()[0], ElementsAre("td [min]", "i (t,p) [l/s.ha]", "Výběr"));
    EXPECT_THAT(column(0), ElementsAre("5", "10", "15", "20", "30", "45", "60", "90", "120"));
    EXPECT_THAT(column(1), Each(std::string("0")));
    EXPECT_DOUBLE_EQ(grid.columns()[0].width_fraction, 0.35);
    EXPECT_DOUBLE_EQ(grid.columns()[2].width_fraction, 0.3);
    EXPECT_EQ(grid.columns()[0].cells, platform::Alignment::Centre);
    EXPECT_EQ(grid.columns()[1].cells, platform::Alignment::Centre);
    EXPECT_FALSE(d.txtHelp.visible());
    EXPECT_FALSE(d.txtSChange.visible());
    EXPECT_THAT(p.rain.asked, IsEmpty());
}

TEST_F(RainDialogTest, AStationAloneIsReadButChangesNothing) {
    p.select(d.cboSelStanice, kBrno);
    EXPECT_THAT(p.rain.asked,
                ElementsAre(std::pair<std::int16_t, std::string>(84, p.folder.file("mero.mdb"))));
    EXPECT_EQ(v.VybranaStanice, "Brno");
    EXPECT_EQ(v.IntenzitaStanice[0][0], 101.0F);
    EXPECT_THAT(v.IntenzitaDeste, Each(0.0F));
    EXPECT_THAT(column(1), Each(std::string("0")));
    EXPECT_FALSE(d.cmdOK.enabled());
}

TEST_F(RainDialogTest, AStationAndEachPeriodicity) {
    p.select(d.cboSelStanice, kBrno);
    for (int k = 0; k < 7; ++k) {
        p.select(d.cboSelPeriod, k);
        const float base = 100.0F * static_cast<float>(k + 1);
        EXPECT_EQ(v.IntenzitaDeste[0], base + 1);
        EXPECT_EQ(v.IntenzitaDeste[8], base + 9);
        EXPECT_EQ(column(1)[8], numbers::general(base + 9));
        EXPECT_EQ(v.VybranaPeriodicita, d.cboSelPeriod.items()[static_cast<std::size_t>(k)]);
        EXPECT_TRUE(d.cmdOK.enabled());
    }
    EXPECT_EQ(p.rain.asked.size(), 1U) << "a periodicity reads nothing";
}

TEST_F(RainDialogTest, APeriodicityFirstIsAppliedWhenTheStationIsChosen) {
    p.select(d.cboSelPeriod, 4);
    EXPECT_THAT(v.IntenzitaDeste, Each(0.0F));
    p.select(d.cboSelStanice, kBrno);
    EXPECT_EQ(v.IntenzitaDeste[0], 501.0F);
    EXPECT_EQ(column(1)[0], "501");
}

TEST_F(RainDialogTest, APeriodicityWithOwnValuesKeepsThemAndEnablesOk) {
    edit(1, 1, "33.3");
    p.select(d.cboSelPeriod, 2);
    EXPECT_EQ(v.IntenzitaDeste[0], 33.3F);
    EXPECT_EQ(column(1)[0], "33.3");
    EXPECT_TRUE(d.cmdOK.enabled());
}

TEST_F(RainDialogTest, TypingSwitchesToOwnValuesAndStoresAtEveryKey) {
    p.select(d.cboSelStanice, kBrno);
    p.select(d.cboSelPeriod, 0);
    p.cell(grid, 2, 1);
    EXPECT_EQ(d.txtSChange.text(), "102.0") << "one decimal, shown and not typed";
    EXPECT_EQ(d.cboSelStanice.text(), "Brno") << "opening changes nothing";
    EXPECT_EQ(column(1)[1], "102");
    p.type(d.txtSChange, "5");
    EXPECT_EQ(d.cboSelStanice.text(), kOwnValues);
    EXPECT_EQ(v.VybranaStanice, kOwnValues);
    EXPECT_EQ(v.IntenzitaDeste[1], 102.05F);
    EXPECT_EQ(column(1)[1], "102.1") << "half away from zero of 102.05";
    EXPECT_EQ(v.IntenzitaDeste[0], 101.0F) << "the other rows stay";
    EXPECT_EQ(d.cboSelPeriod.position(), 0);
}

TEST_F(RainDialogTest, DurationsAreEditedWithoutDecimals) {
    p.cell(grid, 3, 0);
    EXPECT_EQ(d.txtSChange.text(), "15");
    p.type(d.txtSChange, ".5");
    EXPECT_EQ(v.DobaTrvani[2], 15.5F);
    EXPECT_EQ(column(0)[2], "16");
    p.select(d.cboSelPeriod, 0);
    EXPECT_EQ(column(0)[2], "15.5") << "a rebuilt grid shows the general text";
}

TEST_F(RainDialogTest, WhatIsNoNumberIsReadAsFarAsItGoes) {
    const std::vector<std::pair<std::string, float>> texts{{"12,5", 12},   {"x", 0},    {"", 0},
                                                           {"1 234,5", 1}, {"-5", -5},  {"2e2", 200},
                                                           {"🌧️", 0}, {"7 l/s", 7}};
    for (const auto& [text, value] : texts) {
        edit(4, 1, "9");
        edit(4, 1, text);
        EXPECT_EQ(v.IntenzitaDeste[3], value) << text;
        EXPECT_EQ(column(1)[3], numbers::fixed(value, 1)) << text;
    }
    EXPECT_THAT(p.desk.lines, IsEmpty());
}

TEST_F(RainDialogTest, AnOverflowIsReportedAndTheValueStays) {
    edit(4, 1, "9");
    p.cell(grid, 4, 1);
    p.paste(d.txtSChange, "1e39");
    EXPECT_THAT(p.desk.take(), ElementsAre("error 6"));
    EXPECT_EQ(v.IntenzitaDeste[3], 9.0F);
    EXPECT_FALSE(p.program.ended());
}

TEST_F(RainDialogTest, TheChoiceColumnHasNoEditor) {
    p.cell(grid, 4, 0);
    p.cell(grid, 4, 2);
    EXPECT_FALSE(d.txtSChange.visible()) << "and closes an open one";
}

TEST_F(RainDialogTest, AStationOverwritesTypedValuesOnlyWithAPeriodicity) {
    edit(1, 1, "33");
    p.select(d.cboSelStanice, kBrno);
    EXPECT_EQ(v.IntenzitaDeste[0], 33.0F);
    p.select(d.cboSelPeriod, 0);
    EXPECT_EQ(v.IntenzitaDeste[0], 101.0F);
    edit(1, 1, "44");
    p.select(d.cboSelStanice, kBrno);
    EXPECT_EQ(v.IntenzitaDeste[0], 101.0F) << "the periodicity in use is applied again";
}

TEST_F(RainDialogTest, TheMarkFollowsTheLastPickedRow) {
    edit(3, 1, "142");
    p.cell(grid, 3, 2);
    EXPECT_EQ(grid.mark({3, 2}), std::optional(true));
    EXPECT_EQ(v.VybranaIntenzita, 142.0F);
    EXPECT_EQ(v.VybranaDoba, 15.0F);
    p.cell(grid, 5, 2);
    EXPECT_EQ(grid.mark({3, 2}), std::optional(false));
    EXPECT_EQ(grid.mark({5, 2}), std::optional(true));
    EXPECT_EQ(v.VybranaIntenzita, 0.0F);
    EXPECT_EQ(v.VybranaDoba, 30.0F);
    p.cell(grid, 6, 0);
    EXPECT_EQ(grid.mark({5, 2}), std::optional(false));
    EXPECT_EQ(v.VybranaDoba, 30.0F) << "the picture changes, not what is picked";
}

TEST_F(RainDialogTest, EditingAPickedRowDoesNotPickAgain) {
    edit(3, 1, "142");
    p.cell(grid, 3, 2);
    edit(3, 1, "150");
    EXPECT_EQ(v.VybranaIntenzita, 142.0F);
}

TEST_F(RainDialogTest, OkCarriesThePickedRow) {
    edit(3, 1, "142.25");
    p.select(d.cboSelPeriod, 4);
    p.cell(grid, 3, 2);
    p.click(d.cmdOK);
    EXPECT_EQ(w.txtSelIntDeste.text(), "142.25");
    EXPECT_EQ(w.txtSelDTrvDeste.text(), "15");
    EXPECT_THAT(p.desk.lines, ElementsAre("closed frmIntDialog"));
    EXPECT_TRUE(w.enabled());
}

TEST_F(RainDialogTest, OkWithoutAPickedRowWritesNothingButCloses) {
    edit(3, 1, "142");
    p.select(d.cboSelPeriod, 4);
    p.click(d.cmdOK);
    EXPECT_EQ(w.txtSelIntDeste.text(), "");
    EXPECT_EQ(w.txtSelDTrvDeste.text(), "");
    EXPECT_TRUE(w.optSelType[0].selected()) << "the type was selected again";
    EXPECT_FALSE(d.visible());
}

TEST_F(RainDialogTest, APickedRowOfNoDurationCarriesOnlyTheIntensity) {
    edit(3, 1, "142");
    edit(3, 0, "0");
    p.select(d.cboSelPeriod, 4);
    p.cell(grid, 3, 2);
    p.click(d.cmdOK);
    EXPECT_EQ(w.txtSelIntDeste.text(), "142");
    EXPECT_EQ(w.txtSelDTrvDeste.text(), "");
}

TEST_F(RainDialogTest, APickedRowOfNoIntensityCarriesNothing) {
    edit(3, 1, "142");
    p.select(d.cboSelPeriod, 4);
    p.cell(grid, 5, 2);
    p.click(d.cmdOK);
    EXPECT_EQ(w.txtSelIntDeste.text(), "");
    EXPECT_EQ(w.txtSelDTrvDeste.text(), "");
    EXPECT_FALSE(d.visible());
}

TEST_F(RainDialogTest, NoIntensitiesAreRefused) {
    p.select(d.cboSelPeriod, 4);
    p.click(d.cmdOK);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoIntensities));
    EXPECT_EQ(p.desk.messages[0].title, std::nullopt);
    EXPECT_TRUE(d.visible());
    EXPECT_FALSE(w.enabled());
}

TEST_F(RainDialogTest, TheRunningTotalIsRoundedAtEveryStep) {
    p.select(d.cboSelPeriod, 4);
    for (const char* small : {"0.4", "0.5"}) {
        for (int row = 1; row <= 9; ++row) {
            edit(row, 1, small);
        }
        p.click(d.cmdOK);
        EXPECT_THAT(p.desk.take(), ElementsAre(kNoIntensities)) << small << ": halves go to the even 0";
    }
    edit(9, 1, "0.6");
    p.click(d.cmdOK);
    EXPECT_FALSE(d.visible()) << "0.6 is 1";
}

TEST_F(RainDialogTest, ValuesThatCancelOutCountAsNone) {
    p.select(d.cboSelPeriod, 4);
    edit(1, 1, "5");
    edit(2, 1, "-5");
    p.click(d.cmdOK);
    EXPECT_THAT(p.desk.take(), ElementsAre(kNoIntensities));
}

TEST_F(RainDialogTest, ATotalBeyond16BitsIsAnOverflowAndTheDialogStays) {
    p.select(d.cboSelPeriod, 4);
    edit(1, 1, "32767");
    p.cell(grid, 1, 2);
    edit(2, 1, "0.4");
    p.click(d.cmdOK);
    EXPECT_FALSE(d.visible()) << "32767.4 is rounded to the largest total";
    p.click(w.cmdEdit[0]);
    p.desk.take();
    edit(2, 1, "1");
    p.click(d.cmdOK);
    EXPECT_THAT(p.desk.take(), ElementsAre("error 6"));
    EXPECT_TRUE(d.visible());
    EXPECT_FALSE(w.enabled());
    edit(2, 1, "-1");
    p.click(d.cmdOK);
    EXPECT_FALSE(d.visible());
    p.click(w.cmdEdit[0]);
    p.desk.take();
    edit(1, 1, "-32768");
    edit(2, 1, "-1");
    p.click(d.cmdOK);
    EXPECT_THAT(p.desk.take(), ElementsAre("error 6"));
}

TEST_F(RainDialogTest, TheCloseBoxKeepsEverythingButTellsTheMainWindowNothing) {
    p.select(d.cboSelStanice, kBrno);
    p.select(d.cboSelPeriod, 1);
    p.cell(grid, 3, 2);
    p.close(d);
    EXPECT_EQ(v.VybranaIntenzita, 203.0F);
    EXPECT_EQ(v.IntenzitaDeste[8], 209.0F);
    EXPECT_EQ(w.txtSelIntDeste.text(), "");
    EXPECT_FALSE(w.optSelType[0].selected()) << "no re-selection";
    EXPECT_TRUE(w.enabled());
}

TEST_F(RainDialogTest, ReopeningReadsTheStationAgainAndAppliesThePeriodicity) {
    p.select(d.cboSelStanice, kBrno);
    p.select(d.cboSelPeriod, 1);
    p.cell(grid, 3, 2);
    p.rain.tables[84].rows[0][2] = 77.7;
    reopen();
    EXPECT_EQ(p.rain.asked.size(), 2U);
    EXPECT_EQ(d.cboSelStanice.text(), "Brno");
    EXPECT_EQ(d.cboSelPeriod.text(), "2");
    EXPECT_EQ(v.IntenzitaDeste[0], 77.7F);
    EXPECT_EQ(column(1)[0], "77.7");
    EXPECT_TRUE(d.cmdOK.enabled());
    EXPECT_EQ(grid.mark({3, 2}), std::nullopt);
    EXPECT_EQ(v.VybranaIntenzita, 203.0F) << "still picked";
}

TEST_F(RainDialogTest, ReopeningWithOwnValuesKeepsThem) {
    edit(3, 1, "12");
    reopen();
    EXPECT_EQ(column(1)[2], "12");
    EXPECT_FALSE(d.cmdOK.enabled()) << "no periodicity was ever chosen";
    p.select(d.cboSelPeriod, 6);
    reopen();
    EXPECT_EQ(column(1)[2], "12");
    EXPECT_TRUE(d.cmdOK.enabled());
}

TEST_F(RainDialogTest, ADatabaseThatFailsEndsTheProgram) {
    p.select(d.cboSelStanice, 1);
    EXPECT_THAT(p.desk.lines, ElementsAre("error 3078 ends", "closed frmCalc", "ended"));
    EXPECT_EQ(p.program.exitStatus(), 1);
    EXPECT_EQ(v.VybranaStanice, "Bakov nad Jizerou") << "stored before the read";
}

TEST_F(RainDialogTest, ADatabaseThatVanishedEndsTheProgramAtReopening) {
    p.select(d.cboSelStanice, kBrno);
    p.close(d);
    p.desk.take();
    p.rain.failure = RuntimeError(53, "pryč", RuntimeError::Effect::EndsProgram);
    p.click(w.cmdEdit[0]);
    EXPECT_EQ(p.desk.lines.front(), "error 53 ends");
    EXPECT_TRUE(p.program.ended());
}

TEST_F(RainDialogTest, TheDemonstrationNoteFollowsTheDatabase) {
    EXPECT_FALSE(d.lblDemo.visible());
    p.rain.tables[84].demonstration = true;
    p.select(d.cboSelStanice, kBrno);
    EXPECT_TRUE(d.lblDemo.visible());
    p.rain.tables[84].demonstration = false;
    p.select(d.cboSelStanice, kBrno);
    EXPECT_FALSE(d.lblDemo.visible());
}

TEST_F(RainDialogTest, TheDemonstrationNoteStaysWhileAnyRainInUseIsOne) {
    p.rain.tables[84].demonstration = true;
    p.select(d.cboSelStanice, kBrno);
    EXPECT_EQ(d.demonstrationNote(), "") << "read, but not in use before a periodicity is chosen";
    p.select(d.cboSelPeriod, 4);
    p.cell(d.fgIntDeste, 2, 2);
    EXPECT_NE(d.demonstrationNote(), "");

    for (int row = 1; row <= data::kDurationCount; ++row) {
        EXPECT_TRUE(d.lblDemo.visible()) << "row " << row << " is still a demonstration value";
        p.cell(d.fgIntDeste, row, 1);
        p.paste(d.txtSChange, "100");
    }
    EXPECT_TRUE(d.lblDemo.visible()) << "the picked rain is";
    p.close(d);
    p.click(p.window().cmdEdit[0]);
    EXPECT_TRUE(d.lblDemo.visible()) << "also when the dialog opens again with own values";

    p.cell(d.fgIntDeste, 3, 2);
    EXPECT_EQ(d.demonstrationNote(), "") << "all rains are own ones now";
    p.close(d);
    p.click(p.window().cmdEdit[0]);
    EXPECT_FALSE(d.lblDemo.visible());
}

TEST_F(RainDialogTest, HelpIsShownAndHidden) {
    EXPECT_EQ(d.txtHelp.text(),
              "Nápověda:\r\nU plošného vsakování (vsakování \r\nbez akumulace) volte dobu trvání \r\n"
              "deště t=10 min.\r\nPro velké a málo sklonité připojované \r\n"
              "plochy může být doba zvýšena na t=15 \r\nmin.\r\nPeriodicitu volte p=0,2\r\n");
    p.click(d.cmdEdit);
    EXPECT_TRUE(d.txtHelp.visible());
    EXPECT_TRUE(d.cmdCloseHelp.visible());
    p.click(d.cmdCloseHelp);
    EXPECT_FALSE(d.txtHelp.visible());
    EXPECT_FALSE(d.cmdCloseHelp.visible());
}

}  // namespace
}  // namespace mero::forms
