// SPDX-License-Identifier: MIT
/// The actions on projects and their lines of the trace.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "automation/script_support.h"

namespace mero::automation {
namespace {

using test::ScriptedProgram;
using testing::ElementsAre;

TEST(ProjectActions, SaveAndOpenBringTheValuesBack) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("set txtHPV 4.5\nsave p.json\nset txtHPV 1\nopen p.json\nvalue txtHPV\n"),
                ElementsAre(R"({"project": "saved", "path": "p.json"})",
                            R"({"project": "opened", "path": "p.json", "remarks": []})",
                            R"({"value": "txtHPV", "is": 4.5})"));
}

TEST(ProjectActions, NewEmptiesTheWindow) {
    ScriptedProgram p;
    EXPECT_THAT(p.traceOf("set txtHPV 4.5\nnew\nvalue txtHPV\n"),
                ElementsAre(R"({"project": "new"})", R"({"value": "txtHPV", "is": 0})"));
    EXPECT_EQ(p.program.window().txtHPV.text(), "");
}

TEST(ProjectActions, CloseAnOpenDialogFirst) {
    ScriptedProgram p;
    EXPECT_THAT(
        p.traceOf("click cmdEdit(1)\nnew\n"),
        ElementsAre(R"({"opened": "frmDialog"})", R"({"closed": "frmDialog"})", R"({"project": "new"})"));
}

TEST(ProjectActions, TellWhatCouldNotBeTaken) {
    ScriptedProgram p;
    std::ofstream(p.folder.path() + "/p.json") << R"({"rain": {}, "subsoil": {"groundwater_depth_m": "x"}})";
    EXPECT_THAT(p.traceOf("open p.json\n"),
                ElementsAre(R"({"project": "opened", "path": "p.json", "remarks": )"
                            R"(["subsoil.groundwater_depth_m: hodnotu nelze převzít."]})"));
}

TEST(ProjectActions, ThatAreRefusedChangeNothing) {
    ScriptedProgram p;
    EXPECT_THAT(
        p.traceOf("set txtHPV 4.5\nopen nic.json\nsave x/p.json\nvalue txtHPV\n"),
        ElementsAre(R"({"project": "refused", "path": "nic.json", )"
                    R"("why": "Soubor <folder>/nic.json neexistuje."})",
                    R"({"project": "refused", "path": "x/p.json", "why": "Projekt se nepodařilo uložit )"
                    R"(do souboru <folder>/x/p.json: složka neexistuje."})",
                    R"({"value": "txtHPV", "is": 4.5})"));
}

TEST(ProjectActions, TakeAbsolutePathsAsTheyAre) {
    ScriptedProgram p;
    const std::string path = p.folder.path() + "/jinde.json";
    EXPECT_THAT(p.traceOf("save " + path + "\n"),
                ElementsAre(R"({"project": "saved", "path": "<folder>/jinde.json"})"));
}

TEST(ProjectActions, UndoAndRedoStepsByTheirNames) {
    ScriptedProgram p;
    EXPECT_THAT(
        p.traceOf("undo\nset txtProjName A\nset txtHPV 4.5\nset txtInvestor Obec\nundo\nundo\n"
                  "value txtHPV\nundo\nundo\nredo\nredo\nvalue txtHPV\nredo\nredo\n"),
        ElementsAre(R"({"undo": null})", R"({"undo": "Investor"})",
                    R"x({"undo": "Hladina podzemní vody (pod povrchem)"})x",
                    R"({"value": "txtHPV", "is": 0})", R"({"undo": "Název projektu"})", R"({"undo": null})",
                    R"({"redo": "Název projektu"})", R"x({"redo": "Hladina podzemní vody (pod povrchem)"})x",
                    R"({"value": "txtHPV", "is": 4.5})", R"({"redo": "Investor"})", R"({"redo": null})"));
}

TEST(ProjectActions, ComeBackByUndo) {
    ScriptedProgram p;
    EXPECT_THAT(
        p.traceOf("set txtInvestor Obec\nsave p.json\nnew\nundo\nvalue txtProjName\nget txtInvestor\n"),
        ElementsAre(R"({"project": "saved", "path": "p.json"})", R"({"project": "new"})",
                    R"({"undo": "Nový projekt"})", R"({"value": "txtProjName", "is": ""})",
                    testing::HasSubstr("Obec")));
}

}  // namespace
}  // namespace mero::automation
