// SPDX-License-Identifier: MIT
/// Parts of the monkey: a seed is reproducible, every part of the program is reached, scripts are shortened.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "monkey/known_errors.h"
#include "monkey/odd_texts.h"
#include "monkey/run.h"
#include "monkey/stage.h"

namespace mero::monkey {
namespace {

using ::testing::ElementsAre;

bool has(const Script& script, const std::string& line) {
    return std::find(script.begin(), script.end(), line) != script.end();
}

TEST(Shrink, LeavesWhatTheFaultNeedsInItsOrder) {
    Script script;
    for (int line = 0; line < 100; ++line) {
        script.push_back("line " + numbers::general(line));
    }
    const Script shortest = shrink(
        script, [](const Script& shorter) { return has(shorter, "line 3") && has(shorter, "line 77"); });
    EXPECT_THAT(shortest, ElementsAre("line 3", "line 77"));
}

TEST(Shrink, KeepsAScriptOfWhichNothingCanGo) {
    const Script script{"a", "b", "c"};
    EXPECT_EQ(shrink(script, [&](const Script& shorter) { return shorter == script; }), script);
    EXPECT_TRUE(shrink(script, [](const Script&) { return true; }).empty());
}

TEST(Generator, DoesTheSameForTheSameSeed) {
    const SandboxFolder sandbox;
    const Life one = live(sandbox, 7, 300, Generator::Life::Short);
    EXPECT_EQ(one.fault, "");
    EXPECT_EQ(live(sandbox, 7, 300, Generator::Life::Short).script, one.script);
    EXPECT_NE(live(sandbox, 8, 300, Generator::Life::Short).script, one.script);
}

TEST(Generator, DoesNotEndAnEndlessLife) {
    const SandboxFolder sandbox;
    const Life life = live(sandbox, 3, 5000, Generator::Life::Endless);
    EXPECT_EQ(life.fault, "");
    EXPECT_FALSE(life.ended);
    EXPECT_EQ(life.script.size(), 5000U);
}

TEST(Generator, TouchesEveryControlAndGetsToEveryResult) {
    const SandboxFolder sandbox;
    std::set<std::string> touched;
    std::set<std::string> kinds;
    std::set<std::string> messages;
    Stage stage(sandbox);
    Generator generator(11, Generator::Life::Endless);
    for (int action = 0; action < 30000; ++action) {
        const std::string line = generator.next(stage.program());
        ASSERT_NE(stage.perform(line), Stage::Step::Unusable) << stage.diagnostics();
        const auto words = automation::splitLine(line);
        kinds.insert(words.front().text);
        if (words.size() > 1 && !stage.trace().starts_with("{\"refused\"")) {
            touched.insert(targetOf(words));
        }
        for (const auto& message : stage.messages()) {
            messages.insert(message.text);
        }
    }
    for (const char* kind : {"type", "set", "erase", "focus", "leave", "click", "select", "spin", "cell",
                             "key", "tab", "tick", "close", "answer-save", "get"}) {
        EXPECT_TRUE(kinds.contains(kind)) << kind;
    }
    for (const platform::Form* form : stage.program().forms()) {
        for (const platform::Control* control : form->controls()) {
            const bool acts = dynamic_cast<const platform::TextBox*>(control) != nullptr ||
                              dynamic_cast<const platform::Button*>(control) != nullptr ||
                              dynamic_cast<const platform::OptionButton*>(control) != nullptr ||
                              dynamic_cast<const platform::CheckBox*>(control) != nullptr ||
                              dynamic_cast<const platform::DropList*>(control) != nullptr ||
                              dynamic_cast<const platform::Grid*>(control) != nullptr;
            const std::string name = form->name() + "." + control->name();
            // These two buttons are never shown, because their types are calculated live.
            const bool never_shows = name == "frmCalc.cmdCalcul(1)" || name == "frmCalc.cmdCalcul(2)";
            EXPECT_TRUE(!acts || never_shows || touched.contains(name)) << name;
        }
    }
    for (const char* verdict :
         {"Navržená vsakovací plocha je dostatečná", "Navržená vsakovací plocha je nedostatečná",
          "Podmínka výstupního odtoku", "Není splněna podmínka", "Potřebná propustnost filtru je dostačující",
          "Objem nádrže je dostačující", "Vypočítaný objem nádrže", "Průkaz předpokladu",
          "Dno šachty je vzdáleno", "Není vybrána technologie", "Zadejte nepropustnou"}) {
        EXPECT_TRUE(std::any_of(messages.begin(), messages.end(), [verdict](const std::string& message) {
            return message.starts_with(verdict);
        })) << verdict;
    }
}

TEST(KnownErrors, AreThoseOfTheAction) {
    const auto known = [](ErrorNumber number, const std::string& line) {
        return isKnown(RuntimeError(number), automation::splitLine(line));
    };
    EXPECT_TRUE(known(ErrorNumber::DivisionByZero, "click cmdCalcul(3)"));
    EXPECT_FALSE(known(ErrorNumber::TypeMismatch, "click cmdCalcul(3)"));
    EXPECT_TRUE(known(ErrorNumber::TypeMismatch, "type txtPocetPotrubi(4) x"));
    EXPECT_FALSE(known(ErrorNumber::TypeMismatch, "type txtHPV x"));
    EXPECT_FALSE(known(ErrorNumber::Overflow, "tick"));
    EXPECT_TRUE(known(ErrorNumber::Overflow, "key frmDialog.txtPlocha Enter"));
    EXPECT_FALSE(known(ErrorNumber::Overflow, "key frmDialog.txtPlocha Escape"));
}

TEST(KnownErrors, EndTheProgramOnlyWhereTheyMay) {
    const RuntimeError mismatch(13, "", RuntimeError::Effect::EndsProgram);
    EXPECT_TRUE(isKnown(mismatch, automation::splitLine("type frmDialog.txtSChange x")));
    EXPECT_FALSE(isKnown(mismatch, automation::splitLine("type txtPotrHloubkaZahl x")));
    EXPECT_FALSE(isKnown(RuntimeError(ErrorNumber::TypeMismatch),
                         automation::splitLine("type frmDialog.txtSChange x")));
    const RuntimeError missing(data::kTableNotFound, "", RuntimeError::Effect::EndsProgram);
    EXPECT_TRUE(isKnown(missing, automation::splitLine("select frmIntDialog.cboSelStanice 3")));
    EXPECT_FALSE(isKnown(missing, automation::splitLine("select cboSelType 3")));
}

TEST(SandboxFolder, KnowsWhatLeadsOutOfIt) {
    const SandboxFolder sandbox;
    const std::string folder = sandbox.programFolder();
    EXPECT_TRUE(sandbox.contains(folder + "/kopie.html"));
    EXPECT_TRUE(sandbox.contains(folder + "/a/../b"));
    EXPECT_FALSE(sandbox.contains(folder + "/../b"));
    EXPECT_FALSE(sandbox.contains("/tmp/b"));
    EXPECT_FALSE(sandbox.contains(folder + "2/b"));
}

TEST(SandboxFolder, SeesWhatStandsBesideIt) {
    const SandboxFolder sandbox;
    std::ofstream(sandbox.programFolder() + "/own") << "x";
    EXPECT_EQ(sandbox.strayEntry(), "");
    const std::string stray = sandbox.programFolder() + "2";
    std::ofstream file(stray);
    EXPECT_EQ(sandbox.strayEntry(), stray);
}

TEST(Quoted, SurvivesTheScript) {
    for (const std::string text : {"a \"b\" \\ c", "x\r\ny\tz", "", "žluť"}) {
        EXPECT_EQ(automation::splitLine("echo " + quoted(text)).at(1).text, text);
    }
}

}  // namespace
}  // namespace mero::monkey
