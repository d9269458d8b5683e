// SPDX-License-Identifier: MIT
// Running a script: files as editors write them, unusable lines, refusals, exit status.
#include "automation/script_runner.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/script_support.h"

namespace mero::automation {
namespace {

using test::ScriptedProgram;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ScriptRunner, FollowsLinesWhateverEndsThem) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("\xEF\xBB\xBF# with a byte order mark\r\n\r\n  echo a\r\necho b\necho \"c d\""),
                ElementsAre(R"({"echo": "a"})", R"({"echo": "b"})", R"({"echo": "c d"})"));
}

TEST(ScriptRunner, AnEmptyScriptRunsToItsEnd) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf(""), IsEmpty());
    EXPECT_THAT(p.traceOf("\xEF\xBB\xBF"), IsEmpty());
    EXPECT_FALSE(p.program.ended());
}

TEST(ScriptRunner, AnUnusableLineStopsItWithItsPlaceAndReason) {
    for (const char* line : {"jump",
                             "\"echo\" a",
                             "Echo a",
                             "echo",
                             "echo a b",
                             "type txtHPV",
                             "type txtNone 1",
                             "type cmdEdit(0) 1",
                             "set frmX.txtHPV 1",
                             "erase txtHPV x",
                             "erase txtHPV -1",
                             "focus nobody",
                             "leave nobody",
                             "click txtHPV",
                             "click SSTab1",
                             "click fraVstup",
                             "select txtHPV 0",
                             "spin updSacht sideways",
                             "spin txtHPV up",
                             "cell txtHPV 1 1",
                             "cell frmDialog.fgZapisTab 1",
                             "cell frmDialog.fgZapisTab x 0",
                             "key txtHPV F1",
                             "tab",
                             "tab 4",
                             "tab -1",
                             "tab x",
                             "tick 1",
                             "close frmX",
                             "close",
                             "answer-save a b",
                             "get",
                             "get txtHPV2",
                             "get frmDialog.txtHPV",
                             "value",
                             "value Nothing",
                             "value txtHPV(0)",
                             "set txtHPV \"1",
                             "echo \xFF",
                             "get cmdEdit(9)",
                             "get cmdEdit"}) {
        ScriptedProgram p;
        EXPECT_EQ(p.run(std::string("echo before\n\n") + line + "\necho behind\n"), 2) << line;
        EXPECT_THAT(p.take(), ElementsAre(R"({"echo": "before"})")) << line;
        EXPECT_EQ(p.diagnostics.str().rfind("s.mero:3: ", 0), 0U) << line << " told " << p.diagnostics.str();
        EXPECT_GT(p.diagnostics.str().size(), std::string("s.mero:3: \n").size());
        EXPECT_FALSE(p.program.ended());
    }
}

TEST(ScriptRunner, EntriesAndCellsThatAreNotThereMakeItUnusable) {
    for (const char* line :
         {"select cboSelType 6", "select cboSelType \"Nádrž\"", "select cboSelType \"1\""}) {
        ScriptedProgram p;
        EXPECT_EQ(p.run(std::string("tab 1\nclick optSelType(0)\n") + line), 2) << line;
    }
    for (const char* cell : {"0 0", "9 0", "1 3"}) {
        ScriptedProgram p;
        EXPECT_EQ(p.run(std::string("click cmdEdit(2)\ncell frmCoefDialog.fgCoefProp ") + cell), 2) << cell;
    }
}

/// The trace line of an action that the user could not perform.
std::string refused(const std::string& control, const std::string& why) {
    return "{\"refused\": \"" + control + "\", \"why\": \"" + why + "\"}";
}

TEST(ScriptRunner, HiddenAndDisabledControlsAreRefused) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("click optSelType(0)\n"  // on another tab
                          "tab 1\n"
                          "select cboSelType 1\n"       // disabled until a group is chosen
                          "type txtSoucBezp(1) 5\n"     // on a hidden panel
                          "focus txtHPV\n"              // on the tab before
                          "click frmDialog.OKButton\n"  // on a form that is not open
                          "close frmDialog\n"
                          "click cmdPrint\n"),
                ElementsAre(refused("optSelType(0)", "hidden"), refused("cboSelType", "disabled"),
                            refused("txtSoucBezp(1)", "hidden"), refused("txtHPV", "hidden"),
                            refused("frmDialog.OKButton", "hidden"), refused("frmDialog", "hidden"),
                            refused("cmdPrint", "hidden")));
    EXPECT_EQ(p.program.values().txtSoucBezp, 1.2F);
}

TEST(ScriptRunner, AnOpenDialogHidesTheMainWindowFromTheUser) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("click cmdEdit(1)\n"
                          "type txtHPV 3\n"
                          "click cmdEdit(2)\n"
                          "tab 1\n"
                          "close frmCalc\n"
                          "click frmDialog.cmdDelete\n"
                          "cell frmDialog.fgZapisTab 1 0\n"
                          "tick\n"
                          "value txtHPV\n"
                          "close frmDialog\n"
                          "type txtHPV 3\n"
                          "value txtHPV\n"),
                ElementsAre(R"({"opened": "frmDialog"})", refused("txtHPV", "hidden"),
                            refused("cmdEdit(2)", "hidden"), refused("SSTab1", "hidden"),
                            refused("frmCalc", "hidden"), refused("frmDialog.cmdDelete", "disabled"),
                            refused("frmDialog.fgZapisTab", "hidden"), R"({"value": "txtHPV", "is": 0})",
                            R"({"closed": "frmDialog"})", R"({"value": "txtHPV", "is": 3})"));
}

TEST(ScriptRunner, WhereBothHoldItIsHidden) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("click cmdEdit(4)\ntype txtVyskaPiskVrstvy 1\n"),
                ElementsAre(refused("cmdEdit(4)", "hidden"), refused("txtVyskaPiskVrstvy", "hidden")));
}

TEST(ScriptRunner, ClosingTheMainWindowEndsScriptAndProgram) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("close frmCalc\necho never\njump\n"),
                ElementsAre(R"({"closed": "frmCalc"})", R"({"ended": true})"));
    EXPECT_EQ(p.diagnostics.str(), "");
}

TEST(ScriptRunner, AnErrorThatEndsTheProgramGivesStatusOneAlsoOnTheLastLine) {
    for (const char* behind : {"", "\necho never\n"}) {
        ScriptedProgram p;
        EXPECT_EQ(p.run(std::string("click cmdEdit(0)\nselect frmIntDialog.cboSelStanice 4") + behind), 1);
        EXPECT_THAT(p.take(),
                    ElementsAre(R"({"opened": "frmIntDialog"})",
                                R"({"error": 3078, "description": "chybí tabulka List84", "ends": true})",
                                R"({"closed": "frmCalc"})", R"({"ended": true})"));
    }
}

TEST(ScriptRunner, AnErrorInTheMiddleOfTypingEndsTheTyping) {
    ScriptedProgram p;
    EXPECT_EQ(
        p.run("click cmdEdit(1)\nset frmDialog.txtSoucinitel 1\nset frmDialog.txtPlocha 5\n"
              "click frmDialog.cmdZapsat\ncell frmDialog.fgZapisTab 1 1\ntype frmDialog.txtSChange 1x2\n"),
        1);
    EXPECT_THAT(p.take(), ElementsAre(R"({"opened": "frmDialog"})",
                                      R"({"error": 13, "description": "Text není číslo", "ends": true})",
                                      R"({"closed": "frmCalc"})", R"({"ended": true})"));
    EXPECT_EQ(p.program.values().DilciPlocha(1), 51.0F);
}

TEST(ScriptRunner, AnyOtherErrorIsPrintedAndTheScriptGoesOn) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("tab 1\nclick optSelType(0)\nselect cboSelType 4\nclick chkSelPretok(4)\n"
                          "type txtPocetPotrubi(4) x\nvalue txtPocetPotrubi\n"),
                ElementsAre(R"({"error": 13, "description": "Text není číslo", "ends": false})",
                            R"({"value": "txtPocetPotrubi", "is": 1})"));
}

TEST(ScriptRunner, AProgramThatHasEndedFollowsNothing) {
    ScriptedProgram p;
    p.program.close();
    p.take();
    EXPECT_THAT(p.traceOf("echo a\n"), IsEmpty());
}

}  // namespace
}  // namespace mero::automation
