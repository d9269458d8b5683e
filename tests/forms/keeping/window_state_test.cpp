// SPDX-License-Identifier: MIT
/// A window that takes the state of another goes on as that one would.
#include "forms/keeping/window_state.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/test_program.h"

namespace mero::forms {
namespace {

using test::TestProgram;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

void restoreInto(TestProgram& one, const WindowState& state) {
    one.program.enter([&] { restore(one.program, state); });
}

/// A trench with its width and height entered, not calculated.
void enterTrench(TestProgram& one) {
    one.giveSite();
    one.chooseType(FacilityType::Trench);
    one.paste(one.window().txtSirkaRyhy[FacilityType::Trench], "1.2");
    one.paste(one.window().txtVyskaRyhy[FacilityType::Trench], "1.5");
}

TEST(WindowState, OfAFreshWindowIsTheSameEveryTime) {
    TestProgram one;
    TestProgram other;
    EXPECT_EQ(stateOf(one.program), stateOf(other.program));
}

TEST(WindowState, LetsAnotherWindowGoOn) {
    TestProgram first;
    enterTrench(first);
    TestProgram second;
    restoreInto(second, stateOf(first.program));
    EXPECT_EQ(stateOf(second.program), stateOf(first.program));
    first.desk.take();
    second.tab(kTabDesign);
    for (TestProgram* each : {&first, &second}) {
        each->click(each->window().cmdCalcul[FacilityType::Trench]);
    }
    EXPECT_NE(second.window().txtDelkaRyhy[FacilityType::Trench].text(), "");
    EXPECT_EQ(second.desk.take(), first.desk.take());
    EXPECT_EQ(stateOf(second.program), stateOf(first.program));
}

TEST(WindowState, IsTakenWithoutAnyHandler) {
    TestProgram first;
    enterTrench(first);
    TestProgram second;
    second.desk.take();
    restoreInto(second, stateOf(first.program));
    EXPECT_THAT(second.desk.take(), IsEmpty());
    EXPECT_EQ(second.window().SSTab1.position(), kTabInputs);
}

TEST(WindowState, IsShownByObservers) {
    TestProgram first;
    enterTrench(first);
    TestProgram second;
    std::vector<platform::Aspect> changes;
    platform::TextBox& width = second.window().txtSirkaRyhy[FacilityType::Trench];
    width.observe([&](platform::Aspect aspect) { changes.push_back(aspect); });
    const WindowState state = stateOf(first.program);
    restoreInto(second, state);
    EXPECT_THAT(changes, ElementsAre(platform::Aspect::Text));
    EXPECT_EQ(width.text(), "1.2");
    restoreInto(second, state);
    EXPECT_THAT(changes, ElementsAre(platform::Aspect::Text));
}

TEST(WindowState, GoesBackToAnEarlierMoment) {
    TestProgram one;
    enterTrench(one);
    const WindowState before = stateOf(one.program);
    one.click(one.window().cmdCalcul[FacilityType::Trench]);
    one.takeAreaAway();
    ASSERT_NE(stateOf(one.program), before);
    restoreInto(one, before);
    EXPECT_EQ(stateOf(one.program), before);
}

TEST(WindowState, KeepsACoefficientThatWasClickedButNotConfirmed) {
    TestProgram first;
    first.paste(first.window().txtSoucFiltrace, "1e-4");
    first.click(first.window().cmdEdit[2]);
    first.cell(first.soilDialog().fgCoefProp, 1, 2);
    first.close(first.soilDialog());
    ASSERT_NE(first.values().txtSoucFiltrace, 1e-4F);
    TestProgram second;
    restoreInto(second, stateOf(first.program));
    EXPECT_EQ(second.values().txtSoucFiltrace, first.values().txtSoucFiltrace);
    EXPECT_EQ(second.window().txtSoucFiltrace.text(), "1e-4");
}

TEST(WindowState, ClosesOpenDialogs) {
    TestProgram one;
    const WindowState fresh = stateOf(one.program);
    one.click(one.window().cmdEdit[1]);
    one.desk.take();
    restoreInto(one, fresh);
    EXPECT_THAT(one.desk.take(), ElementsAre("closed frmDialog"));
    EXPECT_TRUE(one.window().enabled());
    EXPECT_FALSE(one.areaDialog().visible());
}

TEST(WindowState, LeavesATabWhoseContentWouldBeOld) {
    TestProgram one;
    const WindowState fresh = stateOf(one.program);
    one.giveSite();
    one.chooseType(FacilityType::Surface);
    one.tab(kTabResults);
    const std::string report = one.values().ResultsFilePath;
    ASSERT_TRUE(std::filesystem::exists(report));
    restoreInto(one, fresh);
    EXPECT_EQ(one.window().SSTab1.position(), kTabDesign);
    EXPECT_FALSE(std::filesystem::exists(report));
    EXPECT_EQ(stateOf(one.program), fresh);
}

TEST(WindowState, OfAStationLetsItsDialogOpenInAFreshWindow) {
    TestProgram first;
    first.click(first.window().cmdEdit[0]);
    first.close(first.rainDialog());
    first.click(first.window().cmdEdit[0]);
    first.select(first.rainDialog().cboSelStanice, test::kBrno);
    first.close(first.rainDialog());
    TestProgram second;
    restoreInto(second, stateOf(first.program));
    second.click(second.window().cmdEdit[0]);
    EXPECT_FALSE(second.program.ended());
    EXPECT_EQ(second.values().CestaDatabaze, second.folder.path() + "/mero.mdb");
    EXPECT_EQ(second.rainDialog().cboSelStanice.position(), test::kBrno);
}

}  // namespace
}  // namespace mero::forms
