// SPDX-License-Identifier: MIT
// Start, clock, links, dialogs' buttons and the end of the program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using platform::LocaleItem;
using test::TestProgram;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

TEST(Startup, BeforeItTheClockReadsOneOClock) {
    TestProgram p(TestProgram::Start::Later);
    EXPECT_EQ(p.window().lblTime.text(), "01:00:00");
    EXPECT_FALSE(p.window().visible());
}

TEST(Startup, LoadsTheWindow) {
    TestProgram p;
    EXPECT_TRUE(p.window().visible());
    EXPECT_TRUE(p.window().enabled());
    EXPECT_EQ(p.window().title(), "MERO - Výpočet vsakovacích zařízení");
    EXPECT_EQ(p.window().lblTime.text(), "14:05:09");
    EXPECT_EQ(p.window().SSTab1.position(), 0);
    EXPECT_THAT(p.window().SSTab1.captions(),
                ElementsAre("Základní informace", "Výpočet", "Popis technologie", "Výsledky"));
    EXPECT_EQ(p.values().TypyZasakovani.size(), 7U);
    EXPECT_EQ(p.values().DilciPlocha.length(), 1);
    EXPECT_EQ(p.values().OdtokovySoucinitel.length(), 1);
    EXPECT_EQ(p.values().TypPovrchu.length(), 1);
    EXPECT_EQ(p.values().CestaDatabaze, "") << "set when a dialog is opened";
    EXPECT_THAT(p.desk.lines, IsEmpty());
    EXPECT_FALSE(p.program.ended());
}

TEST(Startup, NoTypeAndNoShaftIsChosen) {
    TestProgram p;
    frmCalc& w = p.window();
    EXPECT_EQ(w.TypeGroup, 0);
    EXPECT_EQ(w.SelectedType, FacilityType::None);
    EXPECT_EQ(w.SoilVariant, 0);
    EXPECT_EQ(w.ShaftShape, data::ShaftShape::Round);
    EXPECT_FALSE(w.cboSelType.enabled());
    EXPECT_THAT(w.cboSelType.items(), IsEmpty());
    EXPECT_THAT(w.cboTypSachty.items(), IsEmpty());
    EXPECT_FALSE(w.cmdEdit[3].enabled());
    EXPECT_FALSE(w.cmdEdit[4].enabled());
    EXPECT_FALSE(w.txtVyskaPiskVrstvy.enabled());
    EXPECT_TRUE(w.txtVyskaPiskVrstvy.greyed());
    for (const auto* group :
         {&w.optSelType, &w.optSelTypPudy2, &w.optSelTypPudy3, &w.optSelTypPudy5, &w.optSelTypSachty}) {
        EXPECT_FALSE((*group)[0].selected());
        EXPECT_FALSE((*group)[1].selected());
    }
    w.picResults.forEach([](int type, platform::Panel& panel) { EXPECT_FALSE(panel.visible()) << type; });
}

TEST(Startup, CaptionsOfTheMainWindow) {
    TestProgram p;
    frmCalc& w = p.window();
    EXPECT_EQ(w.fraVstup.text(), "Vstupní infromace");
    EXPECT_EQ(w.fraVyber.text(), "Výběr typu vsakování");
    EXPECT_EQ(w.optSelType[0].text(), "Decenralizované");
    EXPECT_EQ(w.optSelType[1].text(), "Centralizované");
    for (const auto* group : {&w.optSelTypPudy2, &w.optSelTypPudy3}) {
        EXPECT_EQ((*group)[0].text(), "Písek střední až jemný");
        EXPECT_EQ((*group)[1].text(), "Slit a písek, slit");
    }
    EXPECT_EQ(w.optSelTypPudy5[0].text(), "typ A");
    EXPECT_EQ(w.optSelTypPudy5[1].text(), "typ B");
    EXPECT_EQ(w.optSelTypSachty[0].text(), "kruhový");
    EXPECT_EQ(w.optSelTypSachty[1].text(), "pravoúhlý");
    EXPECT_EQ(w.chkSelPretok[3].text(), "Přetok a škrcený odtok");
    EXPECT_EQ(w.chkSelPretok[4].text(), "Drenáž");
    EXPECT_EQ(w.chkPredUsaz.text(), "Předsazené usazování");
    EXPECT_EQ(w.cmdSaveResults.text(), "Uložit jako");
    for (const int member : {0, 1, 2}) {
        EXPECT_EQ(w.cmdEdit[member].text(), "Zadat");
    }
    for (const int member : {3, 4}) {
        EXPECT_EQ(w.cmdEdit[member].text(), "Editovat");
        EXPECT_EQ(w.cmdOK[member].text(), "OK");
    }
    for (const int member : {3, 4, 5, 6}) {
        EXPECT_EQ(w.cmdCalcul[member].text(), "Výpočti");
    }
}

TEST(Startup, PointBlankAndCommaSeparateWhileTheProgramRuns) {
    TestProgram p;
    EXPECT_EQ(p.locale.texts.at(LocaleItem::DecimalSeparator), ".");
    EXPECT_EQ(p.locale.texts.at(LocaleItem::ThousandsSeparator), " ");
    EXPECT_EQ(p.locale.texts.at(LocaleItem::ListSeparator), ",");
    p.close(p.window());
    EXPECT_EQ(p.locale.texts.at(LocaleItem::DecimalSeparator), ",");
    EXPECT_EQ(p.locale.texts.at(LocaleItem::ThousandsSeparator), "\xC2\xA0");
    EXPECT_EQ(p.locale.texts.at(LocaleItem::ListSeparator), ";");
}

TEST(Startup, AFailingLocaleStopsNeitherStartNorEnd) {
    TestProgram p(TestProgram::Start::Later);
    p.locale.fails_at = 1;
    p.start();
    EXPECT_THAT(p.desk.take(),
                ElementsAre("none: Error 5 (nejde to) in procedure Get_locale of Module Module1"));
    EXPECT_TRUE(p.window().visible());
    EXPECT_EQ(p.values().DilciPlocha.length(), 1) << "the steps behind it were made";
    p.locale.fails_at = static_cast<int>(p.locale.calls.size()) + 1;
    p.close(p.window());
    EXPECT_THAT(p.desk.take(),
                ElementsAre("none: Error 5 (nejde to) in procedure Restore_Locale of Module Module1",
                            "closed frmCalc", "ended"));
    EXPECT_TRUE(p.program.ended());
}

TEST(Startup, TheTimerShowsTheTime) {
    TestProgram p;
    p.window().lblTime.setText("");
    p.user.tick();
    EXPECT_EQ(p.window().lblTime.text(), "14:05:09");
}

TEST(Startup, TheLinksOpenTwoDifferentAddresses) {
    TestProgram p;
    p.click(p.window().lblOdkaz[0]);
    p.click(p.window().lblOdkaz[1]);
    ASSERT_EQ(p.desk.lines.size(), 2U);
    EXPECT_THAT(p.desk.lines[0], StartsWith("url https://"));
    EXPECT_THAT(p.desk.lines[1], StartsWith("url https://"));
    EXPECT_NE(p.desk.lines[0], p.desk.lines[1]);
    p.program.enter([&] { p.window().lblOdkaz_Click(2); });
    EXPECT_EQ(p.desk.lines.size(), 2U) << "any other member does nothing";
}

TEST(Startup, EachButtonOpensItsDialogAndSetsTheDatabasePath) {
    const char* names[] = {"frmIntDialog", "frmDialog", "frmCoefDialog"};
    for (const int member : {0, 1, 2}) {
        TestProgram p;
        p.click(p.window().cmdEdit[member]);
        EXPECT_THAT(p.desk.lines, ElementsAre(std::string("opened ") + names[member]));
        EXPECT_TRUE(p.program.form(names[member])->visible());
        EXPECT_FALSE(p.window().enabled());
        EXPECT_EQ(p.values().CestaDatabaze, p.folder.file("mero.mdb"));
    }
}

TEST(Startup, ADialogThatIsOpenIsShownAgainNotLoadedASecondTime) {
    TestProgram p;
    p.click(p.window().cmdEdit[1]);
    p.type(p.areaDialog().txtPlocha, "12");
    p.click(p.window().cmdEdit[1]);
    EXPECT_THAT(p.desk.lines, ElementsAre("opened frmDialog"));
    EXPECT_EQ(p.areaDialog().txtPlocha.text(), "12");
}

TEST(Startup, ThePathIsSetOnlyAfterTheFirstDialogHasLoaded) {
    TestProgram p;
    p.click(p.window().cmdEdit[0]);
    EXPECT_THAT(p.rain.asked, IsEmpty()) << "loading opens no database";
}

TEST(Ending, ClosingEndsWithStatusZeroOnce) {
    TestProgram p;
    int ends = 0;
    p.program.on_ended = [&] { ++ends; };
    p.close(p.window());
    p.close(p.window());
    p.program.close();
    EXPECT_THAT(p.desk.lines, ElementsAre("closed frmCalc", "ended"));
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(p.program.exitStatus(), 0);
    EXPECT_FALSE(p.window().visible());
}

TEST(Ending, DeletesTheReportButNoSavedCopy) {
    TestProgram p;
    p.giveSite();
    p.paste(p.window().txtProjName, "Test");
    p.chooseType(FacilityType::Surface);
    p.tab(kTabResults);
    ASSERT_TRUE(p.folder.has("Mero_Test"));
    p.desk.save_answer = p.folder.file("kopie.html");
    p.click(p.window().cmdSaveResults);
    p.close(p.window());
    EXPECT_FALSE(p.folder.has("Mero_Test"));
    EXPECT_TRUE(p.folder.has("kopie.html"));
}

TEST(Ending, WithoutAReportNothingIsDeleted) {
    TestProgram p;
    p.folder.write("Mero_", "cizí");
    p.close(p.window());
    EXPECT_TRUE(p.folder.has("Mero_"));
}

TEST(Ending, AnErrorThatEndsTheProgramCleansUpLikeClosing) {
    TestProgram p;
    p.giveSite();
    p.chooseType(FacilityType::Surface);
    p.tab(kTabResults);
    ASSERT_TRUE(p.folder.has("Mero_"));
    p.desk.take();
    p.program.enter([] { throw RuntimeError(53, "soubor chybí", RuntimeError::Effect::EndsProgram); });
    EXPECT_THAT(p.desk.lines, ElementsAre("error 53 ends", "closed frmCalc", "ended"));
    EXPECT_EQ(p.program.exitStatus(), 1);
    EXPECT_FALSE(p.folder.has("Mero_"));
    EXPECT_EQ(p.locale.texts.at(LocaleItem::DecimalSeparator), ",");
}

TEST(Ending, AnyOtherErrorIsReportedAndTheProgramGoesOn) {
    TestProgram p;
    p.program.enter([] { throw RuntimeError(ErrorNumber::DivisionByZero); });
    EXPECT_THAT(p.desk.take(), ElementsAre("error 11"));
    EXPECT_FALSE(p.program.ended());
    p.type(p.window().txtHPV, "2");
    EXPECT_EQ(p.values().txtHPV, 2.0F);
}

TEST(Ending, NoEventEntersAfterTheEnd) {
    TestProgram p;
    p.close(p.window());
    bool ran = false;
    p.program.enter([&] { ran = true; });
    EXPECT_FALSE(ran);
}

TEST(Programs, TwoOfThemInOneProcessShareNothing) {
    TestProgram one;
    TestProgram two;
    one.type(one.window().txtHPV, "3");
    one.giveArea("100");
    EXPECT_EQ(two.values().txtHPV, 0.0F);
    EXPECT_EQ(two.values().RedukovanaPlocha, 0.0F);
    one.close(one.window());
    EXPECT_FALSE(two.program.ended());
}

TEST(Programs, FormsAreFoundByTheirNames) {
    TestProgram p;
    for (const char* name : {"frmCalc", "frmIntDialog", "frmDialog", "frmCoefDialog"}) {
        ASSERT_NE(p.program.form(name), nullptr) << name;
        EXPECT_EQ(p.program.form(name)->name(), name);
    }
    EXPECT_EQ(p.program.form("frmX"), nullptr);
    EXPECT_EQ(p.program.forms().size(), 4U);
}

}  // namespace
}  // namespace mero::forms
