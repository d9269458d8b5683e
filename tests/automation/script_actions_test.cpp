// SPDX-License-Identifier: MIT
// Each action of the script language on the controls that it applies to.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "automation/script_support.h"

namespace mero::automation {
namespace {

using test::ScriptedProgram;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* kSite =
    "set txtProjName \"Test\"\n"
    "click cmdEdit(0)\nselect frmIntDialog.cboSelPeriod \"0.2\"\n"
    "cell frmIntDialog.fgIntDeste 3 1\nset frmIntDialog.txtSChange 150\n"
    "cell frmIntDialog.fgIntDeste 3 2\nclick frmIntDialog.cmdOK\n"
    "click cmdEdit(1)\ntype frmDialog.txtSoucinitel 1\ntype frmDialog.txtPlocha 1000\n"
    "key frmDialog.txtPlocha Enter\nclick frmDialog.OKButton\n"
    "type txtSoucFiltrace 1e-4\n"
    "tab 1\nclick optSelType(0)\nselect cboSelType 1\n";

TEST(ScriptActions, TypeChangesOncePerCharacter) {
    ScriptedProgram p;
    int changes = 0;
    p.program.window().txtHPV.observe([&](platform::Aspect) { ++changes; });
    p.traceOf("type txtHPV 3.25\n");
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(p.program.values().txtHPV, 3.25F);
    p.traceOf("type txtHPV 5\n");
    EXPECT_EQ(p.program.window().txtHPV.text(), "3.255") << "at the end of the text";
}

TEST(ScriptActions, TypeGoesOnFromTheTextThatAHandlerLeft) {
    ScriptedProgram p;
    p.traceOf("type txtHPV 1,5\n");
    EXPECT_EQ(p.program.window().txtHPV.text(), "5") << "the comma emptied the field";
    EXPECT_EQ(p.program.values().txtHPV, 5.0F);
}

TEST(ScriptActions, SetIsOneChangeAndNoneForTheSameText) {
    ScriptedProgram p;
    int changes = 0;
    p.program.window().txtProjName.observe([&](platform::Aspect) { ++changes; });
    p.traceOf("set txtProjName \"Hala A\"\nset txtProjName \"Hala A\"\n");
    EXPECT_EQ(changes, 1);
}

TEST(ScriptActions, LineBreaksReachOnlyBoxesOfSeveralLines) {
    ScriptedProgram p;
    p.traceOf("type txtDetails \"a\\nb\"\nset txtProjName \"a\\nb\\tc\"\n");
    EXPECT_EQ(p.program.values().txtDetails, "a\r\nb");
    EXPECT_EQ(p.program.values().txtProjName, "abc");
}

TEST(ScriptActions, EraseTakesCharactersBackAndStopsAtTheEmptyField) {
    ScriptedProgram p;
    int changes = 0;
    p.traceOf("set txtProjName \"až🌧\"\n");
    p.program.window().txtProjName.observe([&](platform::Aspect) { ++changes; });
    p.traceOf("erase txtProjName 1\n");
    EXPECT_EQ(p.program.values().txtProjName, "až");
    p.traceOf("erase txtProjName 0\nerase txtProjName 1000000\n");
    EXPECT_EQ(p.program.values().txtProjName, "");
    EXPECT_EQ(changes, 3);
}

TEST(ScriptActions, OnlyFocusAndLeaveRunTheHandlersOfTheFocus) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("type txtSoucFiltrace 1e-5\ntype txtHPV 1\ntab 1\nclick optSelType(0)\n"
                          "select cboSelType 0\ntab 0\nvalue txtSoucFiltrace\nget txtSoucFiltrace\n"),
                ElementsAre(R"({"value": "txtSoucFiltrace", "is": 0.00001})",
                            R"({"get": "txtSoucFiltrace", "kind": "text box", "enabled": true, )"
                            R"("visible": true, "text": "1e-5", "greyed": false})"));
    EXPECT_THAT(p.traceOf("leave txtSoucFiltrace\nget txtSoucFiltrace\n"),
                ElementsAre(HasSubstr(R"("text": "1.0E-05")")));
    EXPECT_THAT(p.traceOf("tab 1\nfocus cboSelType\n"),
                ElementsAre(R"({"message": "Zadejte nepropustnou odvodňovanou plochu", "icon": "critical", )"
                            R"("title": null})"));
}

TEST(ScriptActions, FocusMayGoToWhatHasNoHandler) {
    ScriptedProgram p;
    EXPECT_THAT(
        p.traceOf(
            "focus cmdEdit(0)\nleave cmdEdit(0)\nfocus txtHPV\nkey txtHPV Enter\nkey cmdEdit(0) Escape\n"),
        IsEmpty());
}

TEST(ScriptActions, ClickPressesButtonsOptionsBoxesAndLinks) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("click lblTime\nclick lblOdkaz(0)\n"),
                ElementsAre(StartsWith(R"({"url": "https://)")));
    p.traceOf("tab 1\nclick optSelType(0)\nselect cboSelType 4\nclick chkSelPretok(4)\n");
    EXPECT_TRUE(p.program.window().chkSelPretok[4].checked());
    p.traceOf("click chkSelPretok(4)\n");
    EXPECT_FALSE(p.program.window().chkSelPretok[4].checked()) << "toggles";
}

TEST(ScriptActions, SelectByPositionOrByText) {
    ScriptedProgram p;
    p.traceOf("tab 1\nclick optSelType(0)\nselect cboSelType \"Šachtové vsakování\"\n");
    EXPECT_EQ(p.program.window().SelectedType, data::FacilityType::Shaft);
    p.traceOf("select cboSelType 2\n");
    EXPECT_EQ(p.program.window().SelectedType, data::FacilityType::Swale);
    p.traceOf("tab 0\nclick cmdEdit(0)\nselect frmIntDialog.cboSelPeriod \"2\"\n");
    EXPECT_EQ(p.program.values().VybranaPeriodicita, "2") << "quoted digits are a text";
    p.traceOf("select frmIntDialog.cboSelPeriod 2\n");
    EXPECT_EQ(p.program.values().VybranaPeriodicita, "1");
}

TEST(ScriptActions, SpinStepsTheNumberOfShafts) {
    ScriptedProgram p;
    p.traceOf(
        "tab 1\nclick optSelType(0)\nselect cboSelType 5\nspin updSacht up\nspin updSacht up\n"
        "spin updSacht down\n");
    EXPECT_EQ(p.program.values().txtSachtyCount, 2);
}

TEST(ScriptActions, TickShowsTheFrozenTime) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("tick\nget lblTime\n"),
                ElementsAre(R"({"get": "lblTime", "kind": "label", "enabled": true, "visible": true, )"
                            R"("text": "14:05:09"})"));
}

TEST(ScriptActions, TabsPreviewAndSavingAreTraced) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf(kSite), testing::SizeIs(4)) << "two dialogs opened and closed";
    EXPECT_THAT(
        p.traceOf("tab 2\ntab 3\nclick cmdPrint\nanswer-save \"kopie zprávy.html\"\nclick cmdSaveResults\n"),
        ElementsAre(R"({"navigated": "wbShowPopisTech", "path": "<folder>/Webs/Desc01.htm"})",
                    R"({"navigated": "wbShowResults", "path": "<folder>/Mero_Test"})",
                    R"({"preview": "<folder>/Mero_Test"})", R"({"saved": "<folder>/kopie zprávy.html"})"));
    EXPECT_TRUE(p.folder.has("kopie zprávy.html"));
}

TEST(ScriptActions, AnAnswerServesOneSaveDialogAndNoAnswerCancels) {
    ScriptedProgram p;
    p.traceOf(std::string(kSite) + "tab 3\n");
    EXPECT_THAT(p.traceOf("click cmdSaveResults\n"), IsEmpty());
    EXPECT_THAT(p.traceOf("answer-save a.html\nclick cmdSaveResults\nclick cmdSaveResults\n"),
                ElementsAre(R"({"saved": "<folder>/a.html"})"));
    EXPECT_THAT(p.traceOf("answer-save b.html\nanswer-save\nclick cmdSaveResults\n"), IsEmpty());
    EXPECT_FALSE(p.folder.has("b.html"));
    const mero::test::TemporaryFolder other;
    EXPECT_THAT(p.traceOf("answer-save " + other.file("c.html") + "\nclick cmdSaveResults\n"),
                ElementsAre(R"({"saved": ")" + other.file("c.html") + R"("})"));
    EXPECT_TRUE(other.has("c.html"));
}

TEST(ScriptActions, DialogsAreClosedByTheirCloseBox) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("click cmdEdit(2)\nclose frmCoefDialog\n"),
                ElementsAre(R"({"opened": "frmCoefDialog"})", R"({"closed": "frmCoefDialog"})"));
}

TEST(ScriptActions, EchoEscapesAsJsonDoes) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("echo \"a\\\"b\\\\c\\n\\r\\té\"\n"), ElementsAre(R"({"echo": "a\"b\\c\n\r\té"})"));
}

}  // namespace
}  // namespace mero::automation
