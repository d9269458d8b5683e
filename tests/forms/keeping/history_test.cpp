// SPDX-License-Identifier: MIT
/// Undo takes back what a user calls a step, with the stored values.
#include "forms/keeping/history.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/keeping/project_work.h"
#include "support/test_program.h"

namespace mero::forms {
namespace {

using testing::ElementsAre;

class HistoryTest : public testing::Test {
  protected:
    test::TestProgram one;
    ProjectWork work{one.program, {one.rain, one.folder.path()}};
    History& history = work.history();
    frmCalc& window = one.window();

    std::optional<std::string> undo() {
        std::optional<History::Step> step;
        one.program.enter([&] { step = history.undo(); });
        return step ? std::optional(step->name) : std::nullopt;
    }
    std::optional<std::string> redo() {
        std::optional<History::Step> step;
        one.program.enter([&] { step = history.redo(); });
        return step ? std::optional(step->name) : std::nullopt;
    }
    /// The names of all steps, the latest first; all of them are undone.
    std::vector<std::string> undoAll() {
        std::vector<std::string> names;
        while (const auto name = undo()) {
            names.push_back(*name);
        }
        return names;
    }
};

TEST_F(HistoryTest, AWindowThatWasJustOpenedHasNoSteps) {
    EXPECT_EQ(history.undoName(), std::nullopt);
    EXPECT_EQ(history.redoName(), std::nullopt);
    EXPECT_EQ(undo(), std::nullopt);
    EXPECT_EQ(redo(), std::nullopt);
}

TEST_F(HistoryTest, TheTextOfAFieldIsOneStep) {
    one.type(window.txtHPV, "12.5");
    EXPECT_EQ(history.undoName(), "Hladina podzemní vody (pod povrchem)");
    undo();
    EXPECT_EQ(window.txtHPV.text(), "");
    EXPECT_EQ(one.values().txtHPV, 0.0F);
    redo();
    EXPECT_EQ(window.txtHPV.text(), "12.5");
    EXPECT_EQ(one.values().txtHPV, 12.5F);
}

TEST_F(HistoryTest, EachVisitToAFieldIsAStep) {
    one.type(window.txtHPV, "3");
    one.type(window.txtProjName, "dům");
    one.type(window.txtHPV, "5");
    EXPECT_THAT(undoAll(), ElementsAre("Hladina podzemní vody (pod povrchem)", "Název projektu",
                                       "Hladina podzemní vody (pod povrchem)"));
}

TEST_F(HistoryTest, LeavingTheCoefficientBelongsToTypingIt) {
    one.type(window.txtSoucFiltrace, "1.44e-6");
    one.leave(window.txtSoucFiltrace);
    EXPECT_EQ(one.values().txtSoucFiltrace, 1.4e-6F);
    EXPECT_THAT(undoAll(), ElementsAre("Součinitel filtrace (kf) podloží"));
    EXPECT_EQ(window.txtSoucFiltrace.text(), "");
}

TEST_F(HistoryTest, ADialogIsOneStep) {
    one.giveArea("1000");
    EXPECT_EQ(one.values().RedukovanaPlocha, 1000.0F);
    EXPECT_THAT(undoAll(), ElementsAre("Střední odtokový součinitel"));
    EXPECT_EQ(one.values().RedukovanaPlocha, 0.0F);
    EXPECT_EQ(window.txtOdvodNepPlocha.text(), "");
    redo();
    EXPECT_EQ(one.values().RedukovanaPlocha, 1000.0F);
}

TEST_F(HistoryTest, ADialogThatChangedNothingIsNoStep) {
    one.click(window.cmdEdit[0]);
    one.close(window.intDialog);
    one.click(window.cmdEdit[2]);
    one.close(window.coefDialog);
    EXPECT_EQ(history.undoName(), std::nullopt);
}

TEST_F(HistoryTest, ChoosingATabIsNoStep) {
    one.giveSite();
    one.chooseType(FacilityType::Trench);
    one.paste(window.txtDetails, "one\r\ntwo");
    const std::string last = history.undoName().value_or("");
    one.tab(kTabResults);  // puts break tags into the stored description
    one.tab(kTabInputs);
    EXPECT_EQ(history.undoName(), last);
}

TEST_F(HistoryTest, ATypeAndACalculationAreSteps) {
    one.giveSite();
    one.chooseType(FacilityType::Trench);
    one.paste(window.txtSirkaRyhy[4], "1");
    one.paste(window.txtVyskaRyhy[4], "2");
    one.click(window.cmdCalcul[4]);
    const std::string length = window.txtDelkaRyhy[4].text();
    const float stored = one.values().txtDelkaRyhy;
    ASSERT_NE(length, "");
    EXPECT_EQ(undo(), "Výpočet");
    EXPECT_EQ(window.txtDelkaRyhy[4].text(), "");
    EXPECT_EQ(undo(), "Výška rýhy");
    EXPECT_EQ(undo(), "Šířka rýhy (střední)");
    EXPECT_EQ(undo(), "Typ vsakování: " + one.values().TypyZasakovani[4]);
    EXPECT_FALSE(window.picResults[4].visible());
    for (int step = 0; step < 4; ++step) {
        redo();
    }
    EXPECT_EQ(window.txtDelkaRyhy[4].text(), length);
    EXPECT_EQ(one.values().txtDelkaRyhy, stored);
    EXPECT_EQ(redo(), std::nullopt);
}

TEST_F(HistoryTest, ClicksOfTheUpDownControlInARowAreOneStep) {
    one.giveSite();
    one.chooseType(FacilityType::Shaft);
    for (int click = 0; click < 3; ++click) {
        one.user.spin(window.updSacht, platform::UpDown::Direction::Up);
    }
    EXPECT_EQ(window.txtSachtyCount.text(), "4");
    EXPECT_EQ(undo(), "Počet šachet");
    EXPECT_EQ(window.txtSachtyCount.text(), "1");
    EXPECT_NE(undo(), "Počet šachet");
}

TEST_F(HistoryTest, ANewStepForgetsWhatWasUndone) {
    one.type(window.txtProjName, "a");
    one.type(window.txtHPV, "1");
    undo();
    one.type(window.txtInvestor, "b");
    EXPECT_EQ(redo(), std::nullopt);
    EXPECT_THAT(undoAll(), ElementsAre("Investor", "Název projektu"));
}

TEST_F(HistoryTest, LeavesTheResultsWhichWouldBeOutOfDate) {
    one.giveSite();
    one.chooseType(FacilityType::Surface);
    one.tab(kTabResults);
    undo();
    EXPECT_EQ(window.SSTab1.position(), kTabDesign);
}

TEST_F(HistoryTest, ClosesAnOpenDialog) {
    one.click(window.cmdEdit[1]);
    one.cell(window.areaDialog.fgSoucPovrchOdtok, 2, 3);
    one.type(window.areaDialog.txtPlocha, "700");
    one.press(window.areaDialog.txtPlocha, platform::Key::Enter);
    EXPECT_EQ(undo(), "Střední odtokový součinitel");
    EXPECT_FALSE(window.areaDialog.visible());
    EXPECT_TRUE(window.enabled());
    EXPECT_EQ(one.values().RedukovanaPlocha, 0.0F);
}

TEST_F(HistoryTest, KeepsAHundredStepsAndMore) {
    for (int step = 0; step < 250; ++step) {
        one.paste(step % 2 == 0 ? window.txtProjName : window.txtInvestor, std::to_string(step));
    }
    EXPECT_EQ(undoAll().size(), History::kMostSteps);
    EXPECT_EQ(window.txtProjName.text(), "48");
    EXPECT_EQ(window.txtInvestor.text(), "49");
    EXPECT_GE(History::kMostSteps, 100U);
}

TEST_F(HistoryTest, ANewProjectIsAStep) {
    one.type(window.txtProjName, "dům");
    EXPECT_TRUE(work.changed());
    one.program.enter([&] { work.startNew(); });
    EXPECT_EQ(window.txtProjName.text(), "");
    EXPECT_FALSE(work.changed());
    EXPECT_EQ(undo(), "Nový projekt");
    EXPECT_EQ(window.txtProjName.text(), "dům");
    EXPECT_TRUE(work.changed());
}

TEST_F(HistoryTest, AProjectIsNotChangedByWhatIsUndone) {
    one.type(window.txtProjName, "dům");
    undo();
    EXPECT_FALSE(work.changed());
}

TEST_F(HistoryTest, AProjectIsNotChangedByLookingAtIt) {
    one.click(window.cmdEdit[0]);
    one.close(window.intDialog);
    one.tab(kTabDesign);
    one.tab(kTabInputs);
    EXPECT_FALSE(work.changed());
}

}  // namespace
}  // namespace mero::forms
