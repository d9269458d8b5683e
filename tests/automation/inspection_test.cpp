// SPDX-License-Identifier: MIT
// Results of `get` and `value`: every kind of control, every shared value by its name.
#include "automation/inspection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "automation/script_support.h"

namespace mero::automation {
namespace {

using test::ScriptedProgram;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

struct InspectionTest : testing::Test {
    std::string get(const std::string& control) {
        const auto lines = p.traceOf("get " + control + "\n");
        EXPECT_EQ(lines.size(), 1U);
        return lines.empty() ? "" : lines.front();
    }
    /// The value's JSON text.
    std::string value(const std::string& name) {
        const auto lines = p.traceOf("value " + name + "\n");
        const std::string start = R"~({"value": ")~" + name + R"~(", "is": )~";
        EXPECT_EQ(lines.size(), 1U) << name;
        if (lines.empty() || lines.front().rfind(start, 0) != 0) {
            return "?";
        }
        return lines.front().substr(start.size(), lines.front().size() - start.size() - 1);
    }
    ScriptedProgram p;
};

TEST_F(InspectionTest, EveryKindOfControl) {
    EXPECT_EQ(get("txtMinPrusakDraha"),
              R"~({"get": "txtMinPrusakDraha", "kind": "text box", "enabled": true, "visible": true, )~"
              R"~("text": "1.5", "greyed": false})~");
    EXPECT_EQ(get("txtVyskaPiskVrstvy"),
              R"~({"get": "txtVyskaPiskVrstvy", "kind": "text box", "enabled": false, "visible": true, )~"
              R"~("text": "", "greyed": true})~");
    EXPECT_EQ(get("cmdEdit(3)"),
              R"~({"get": "cmdEdit(3)", "kind": "button", "enabled": false, "visible": true, )~"
              R"~("text": "Editovat"})~");
    EXPECT_EQ(
        get("lblTime"),
        R"~({"get": "lblTime", "kind": "label", "enabled": true, "visible": true, "text": "14:05:09"})~");
    EXPECT_EQ(get("fraVstup"), R"~({"get": "fraVstup", "kind": "frame", "enabled": true, "visible": true, )~"
                               R"~("text": "Vstupní infromace"})~");
    EXPECT_EQ(get("optSelType(1)"),
              R"~({"get": "optSelType(1)", "kind": "option button", "enabled": true, "visible": true, )~"
              R"~("text": "Centralizované", "checked": false})~");
    EXPECT_EQ(get("chkPredUsaz"),
              R"~({"get": "chkPredUsaz", "kind": "check box", "enabled": true, "visible": true, )~"
              R"~("text": "Předsazené usazování", "checked": false})~");
    EXPECT_EQ(get("cboSelType"),
              R"~({"get": "cboSelType", "kind": "list", "enabled": false, "visible": true, "items": [], )~"
              R"~("position": -1, "text": ""})~");
    EXPECT_EQ(get("wbShowResults"),
              R"~({"get": "wbShowResults", "kind": "browser view", "enabled": true, "visible": false, )~"
              R"~("path": ""})~");
    EXPECT_EQ(
        get("SSTab1"),
        R"~({"get": "SSTab1", "kind": "tab control", "enabled": true, "visible": true, "position": 0, )~"
        R"~("items": ["Základní informace", "Výpočet", "Popis technologie", "Výsledky"]})~");
    EXPECT_EQ(get("picResults(6)").find(R"~({"get": "picResults(6)")~"), 0U);
    EXPECT_THAT(get("updSacht"), StartsWith(R"~({"get": "updSacht")~"));
}

TEST_F(InspectionTest, TheNameIsAnsweredAsItWasAsked) {
    EXPECT_THAT(get("frmCalc.txtHPV"), StartsWith(R"~({"get": "frmCalc.txtHPV")~"));
    EXPECT_THAT(get("frmDialog.txtOdvodNepPlocha"), StartsWith(R"~({"get": "frmDialog.txtOdvodNepPlocha")~"));
}

TEST_F(InspectionTest, AGridWithMarksAndItsCurrentCell) {
    p.traceOf("click cmdEdit(2)\ncell frmCoefDialog.fgCoefProp 2 2\ncell frmCoefDialog.fgCoefProp 1 2\n");
    const std::string state = get("frmCoefDialog.fgCoefProp");
    EXPECT_THAT(
        state, StartsWith(R"~({"get": "frmCoefDialog.fgCoefProp", "kind": "grid", "enabled": true, )~"
                          R"~("visible": true, "greyed": false, "rows": [["typ půdy", )~"
                          R"~("souč. filtrace [m/s]", "Výběr"], ["Jemný a střední štěrk", "7.0E-04", ""])~"));
    EXPECT_THAT(state,
                HasSubstr(R"~("marks": [[null, null, null], [null, null, true], [null, null, false], )~"
                          R"~([null, null, null])~"));
    EXPECT_THAT(state, HasSubstr(R"~("row": 1, "col": 2})~"));
}

TEST_F(InspectionTest, OwnStatesAreToldNotThoseOfTheHolders) {
    EXPECT_THAT(get("txtSoucBezp(1)"), HasSubstr(R"~("visible": true)~")) << "its panel is hidden";
    p.traceOf("click cmdEdit(1)\n");
    EXPECT_THAT(get("txtHPV"), HasSubstr(R"~("enabled": true)~")) << "its form is disabled";
    EXPECT_THAT(get("frmCalc"), HasSubstr(R"~("enabled": false)~"));
}

TEST_F(InspectionTest, SharedValuesOfReferenceTables) {
    EXPECT_EQ(value("DobaTrvani"), "[5, 10, 15, 20, 30, 45, 60, 90, 120]");
    EXPECT_EQ(value("Periodicita"), "[5, 2, 1, 0.5, 0.2, 0.1, 0.05]");
    EXPECT_THAT(value("StaniceCislo"), StartsWith("[15, 86, 51, 84, 48,"));
    EXPECT_THAT(value("StaniceNazev"), StartsWith(R"~(["(Vlastní hodnoty)", "Bakov nad Jizerou", )~"));
    EXPECT_THAT(value("TypyZasakovani"), StartsWith(R"~(["[Vyber typ zasakování]", "Plošné vsakování", )~"));
    EXPECT_THAT(value("TypPudy"), StartsWith(R"~(["Jemný a střední štěrk", "Písčitý štěrk", )~"));
    EXPECT_THAT(value("SoucFiltracePudy"), StartsWith("[0.0007, 0.0004, 0.0001, 0.00002, 0.00005, "));
    EXPECT_THAT(value("SoucOdtoku"), StartsWith("[0.95, 0.9, 0.95, 0.9, 0.7, 0.5, 0.3, "));
    EXPECT_THAT(value("PovrchSkupina"), StartsWith(R"~(["šikmé střechy", "šikmé střechy", )~"));
    EXPECT_THAT(value("PovrchPopis"), StartsWith(R"~(["kov, sklo, břidlice, )~"));
    EXPECT_THAT(value("SachtaKruhova"), StartsWith(R"~([["RSA - Q.1 100/../12", 1, 0.12], )~"));
    EXPECT_THAT(value("SachtaObdelnikova"), StartsWith(R"~([["RSD 240/190/..", 2.4, 1.9, 0.1], )~"));
}

TEST_F(InspectionTest, SharedValuesAtTheStart) {
    for (const char* name : {"RedukovanaPlocha",
                             "VybranaIntenzita",
                             "VybranaDoba",
                             "TypeGroup",
                             "SelectedType",
                             "SoilVariant",
                             "ShaftShape",
                             "txtHPV",
                             "txtOdvodNepPlocha",
                             "txtSelIntDeste",
                             "txtSelDTrvDeste",
                             "txtOdtokDoVsak",
                             "txtSoucFiltrace",
                             "txtSoucFiltrPruleh",
                             "txtSirkaRyhy",
                             "txtVyskaRyhy",
                             "txtPrumTroubVnej",
                             "txtPrumTroubVnit",
                             "txtSpecDrenOdtok",
                             "txtVystupPlocha",
                             "txtVystupRychlost",
                             "txtNezamrzHlPritok",
                             "txtVyskaPiskVrstvy",
                             "txtVyskaFiltrVrstvy",
                             "txtPotrHloubkaZahl",
                             "txtSpecMeroIntenz",
                             "txtDelkaDnaNadrz",
                             "txtSirkaDnaNadrz",
                             "txtHloubkaNadrz",
                             "txtSklonSvahuNadrz",
                             "txtVsakPlocha",
                             "txtPrumerSachtyVnit",
                             "txtPrumerSachtyVnej",
                             "txtTloustkaSteny",
                             "D_i",
                             "D_a",
                             "s_RR",
                             "Q_dr",
                             "txtObjAkum",
                             "txtVyskaVzduti",
                             "txtDobaPrazdneni",
                             "txtDelkaRyhy",
                             "txtHloubkaPrulehu",
                             "txtSirkaPrulehu",
                             "txtHloubkaSachty",
                             "txtVsakTok",
                             "txtVypObjNadrz"}) {
        EXPECT_EQ(value(name), "0") << name;
    }
    for (const char* name :
         {"txtProjName", "txtProjektant", "txtMistoAkce", "txtInvestor", "txtDetails", "txtTypPudyPodlozi",
          "VybranaStanice", "VybranaPeriodicita", "CestaDatabaze", "ResultsFilePath", "ResultsFileName"}) {
        EXPECT_EQ(value(name), "\"\"") << name;
    }
    EXPECT_EQ(value("txtSoucBezp"), "1.2");
    EXPECT_EQ(value("txtPorVyplne"), "0.35");
    EXPECT_EQ(value("txtPocetPotrubi"), "1");
    EXPECT_EQ(value("txtMinPrusakDraha"), "1.5");
    EXPECT_EQ(value("txtSachtyCount"), "1");
    EXPECT_EQ(value("IntenzitaDeste"), "[0, 0, 0, 0, 0, 0, 0, 0, 0]");
    EXPECT_EQ(value("DobaStanice"), "[0, 0, 0, 0, 0, 0, 0, 0, 0]");
    EXPECT_THAT(value("IntenzitaStanice"), StartsWith("[[0, 0, 0, 0, 0, 0, 0, 0, 0], [0, "));
}

TEST_F(InspectionTest, ListsPrintFromTheirFirstPositionWithTheSpareOne) {
    EXPECT_EQ(value("DilciPlocha"), "[0]");
    EXPECT_EQ(value("TypPovrchu"), R"~([""])~");
    p.traceOf(
        "click cmdEdit(1)\ncell frmDialog.fgSoucPovrchOdtok 5 3\ntype frmDialog.txtPlocha 12.5\n"
        "key frmDialog.txtPlocha Enter\n");
    EXPECT_EQ(value("DilciPlocha"), "[12.5, 0]");
    EXPECT_EQ(value("OdtokovySoucinitel"), "[0.7, 0]");
    EXPECT_EQ(value("TypPovrchu"), R"~(["štěrk", ""])~");
    EXPECT_EQ(value("RedukovanaPlocha"), "8.75");
}

TEST_F(InspectionTest, ABoxAnswersWithTheStoredValueNotItsText) {
    p.traceOf("type txtHPV 2.50\nset txtSoucFiltrace 1e\n");
    EXPECT_EQ(value("txtHPV"), "2.5");
    EXPECT_EQ(value("txtSoucFiltrace"), "1");
}

}  // namespace
}  // namespace mero::automation
