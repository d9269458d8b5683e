// SPDX-License-Identifier: MIT
/// The watcher detects each kind of fault: every rule is broken once on purpose.
#include "monkey/watcher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace mero::monkey {
namespace {

using ::testing::StartsWith;

class WatcherTest : public ::testing::Test {
  protected:
    /// Gives a harmless link a handler and clicks it.
    std::string faultOf(const std::function<void()>& handler) {
        window().lblOdkaz[0].clicked = handler;
        return watcher_.perform("click lblOdkaz(0)");
    }
    forms::frmCalc& window() { return stage_.program().window(); }

    SandboxFolder sandbox_;
    Stage stage_{sandbox_};
    Watcher watcher_{stage_};
};

TEST_F(WatcherTest, HasNothingToSayOfAnOrdinaryUser) {
    for (const char* line :
         {"type txtHPV \"3.5\"", "type txtHPV \"x\"", "type txtSoucFiltrace \"1e-5\"",
          "leave txtSoucFiltrace", "click cmdEdit(0)", "select frmIntDialog.cboSelStanice 5",
          "select frmIntDialog.cboSelPeriod 4", "cell frmIntDialog.fgIntDeste 3 2",
          "click frmIntDialog.cmdOK", "tab 1", "click optSelType(1)", "click optSelType(0)",
          "select cboSelType 4", "click cmdCalcul(4)", "close frmCalc"}) {
        EXPECT_EQ(watcher_.perform(line), "") << line;
    }
}

TEST_F(WatcherTest, SeesTextsThatAreNoNumbers) {
    EXPECT_THAT(faultOf([&] { window().txtObjAkum[2].setText("-inf"); }), StartsWith("no number:"));
    EXPECT_THAT(faultOf([&] { window().txtVsakTok.setText("NaN"); }), StartsWith("no number:"));
}

TEST_F(WatcherTest, DoesNotBlameWhatTheUserTypedHimself) {
    EXPECT_EQ(watcher_.perform("set txtProjName \"inf\""), "");
    EXPECT_EQ(watcher_.perform("set txtHPV \"nan\""), "");
    EXPECT_EQ(window().txtHPV.text(), "");
}

TEST_F(WatcherTest, SeesAFieldThatDiffersFromItsValue) {
    EXPECT_THAT(faultOf([&] { window().txtHPV.showText("7"); }), StartsWith("fields: txtHPV is not"));
    EXPECT_EQ(watcher_.perform("set txtHPV \"8\""), "");
    EXPECT_THAT(faultOf([&] { window().txtHPV.showText("x"); }), StartsWith("fields: txtHPV kept"));
    EXPECT_EQ(watcher_.perform("set txtHPV \"9\""), "");
    EXPECT_THAT(faultOf([&] { window().txtHPV.showText(""); }), StartsWith("fields: txtHPV is empty"));
    EXPECT_EQ(watcher_.perform("set txtHPV \"1\""), "");
    EXPECT_THAT(faultOf([&] { window().txtInvestor.showText("Brno"); }), StartsWith("fields: txtInvestor"));
}

TEST_F(WatcherTest, AsksOnlyTheMemberThatChangedLast) {
    window().txtPorVyplne[3].showText("7");
    EXPECT_THAT(watcher_.perform("tick"), StartsWith("fields: txtPorVyplne(3)"));
    window().txtPorVyplne[4].setText("0.4");
    EXPECT_EQ(watcher_.perform("tick"), "");
}

TEST_F(WatcherTest, SeesTwoPanelsOrTheWrongOne) {
    window().picResults[2].show();
    EXPECT_THAT(watcher_.perform("tick"), StartsWith("panels: 2 shows"));
    window().picResults[3].show();
    EXPECT_THAT(watcher_.perform("tick"), StartsWith("panels: more than one"));
}

TEST_F(WatcherTest, SeesAWindowThatIsEnabledOrDisabledAtTheWrongTime) {
    window().setEnabled(false);
    EXPECT_THAT(watcher_.perform("tick"), StartsWith("dialogs: the main window is disabled"));
    window().setEnabled(true);
    EXPECT_EQ(watcher_.perform("click cmdEdit(1)"), "");
    window().setEnabled(true);
    EXPECT_THAT(watcher_.perform("tick"), StartsWith("dialogs: the main window is enabled"));
}

TEST_F(WatcherTest, SeesErrorsThatTheActionDoesNotKnow) {
    EXPECT_THAT(faultOf([] { throw RuntimeError(ErrorNumber::SubscriptOutOfRange); }),
                StartsWith("error: 9 out of click"));
    EXPECT_THAT(faultOf([] { throw RuntimeError(ErrorNumber::Overflow); }),
                StartsWith("error: 6 out of click"));
}

TEST_F(WatcherTest, SeesWhatIsNoRuntimeError) {
    EXPECT_EQ(faultOf([] { throw std::out_of_range("row 7"); }), "exception: row 7");
}

TEST_F(WatcherTest, SeesAProgramThatEndsByItself) {
    EXPECT_THAT(faultOf([&] { stage_.program().close(); }), StartsWith("end:"));
}

TEST(HasNoNumber, TakesTheWordsAloneAndInAnyCase) {
    for (const char* text : {"inf", "-INF", "a: nan", "NaN|", "1 infinity"}) {
        EXPECT_TRUE(hasNoNumber(text)) << text;
    }
    for (const char* text : {"", "infromace", "nános", "finance", "konání", "1E+30"}) {
        EXPECT_FALSE(hasNoNumber(text)) << text;
    }
}

}  // namespace
}  // namespace mero::monkey
