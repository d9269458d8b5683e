// SPDX-License-Identifier: MIT
/// Both programs perform the same lines; traces, states and reports are compared after each.
#include "monkey/kept_life.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

#include "forms/keeping/project_file.h"
#include "monkey/generator.h"
#include "monkey/stage.h"

namespace mero::monkey {
namespace {

constexpr const char* kProject = "projekt.json";
constexpr int kActionsAfter = 40;

/// What is shown must not depend on the folder.
std::string withoutFolder(std::string text, const SandboxFolder& sandbox) {
    const std::string folder = sandbox.programFolder();
    for (std::size_t at = text.find(folder); at != std::string::npos; at = text.find(folder, at)) {
        text.replace(at, folder.size(), "FOLDER");
    }
    return text;
}

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Leaves dialogs and documents, as opening a project does. An answer to a save dialog is no project's.
Script leaving(Stage& stage) {
    Script script{"answer-save"};
    for (const platform::Form* form : stage.program().forms()) {
        if (form->visible() && form->name() != "frmCalc") {
            script.push_back("close " + form->name());
        }
    }
    script.emplace_back("tab 1");
    return script;
}

/// Calculates every type, shows every dialog and the report.
Script everything() {
    Script script{"tab 1"};
    for (int type = 1; type <= 6; ++type) {
        const std::string index = "(" + numbers::general(type) + ")";
        script.insert(script.end(),
                      {"click optSelType(" + numbers::general(type == 6 ? 1 : 0) + ")", "focus cboSelType"});
        if (type < 6) {
            script.push_back("select cboSelType " + numbers::general(type));
        }
        script.insert(script.end(), {"click cmdCalcul" + index, "tab 2", "tab 3", "tab 1"});
    }
    for (const char* dialog : {"frmIntDialog", "frmDialog", "frmCoefDialog"}) {
        const int button = dialog[3] == 'I' ? 0 : dialog[3] == 'D' ? 1 : 2;
        script.insert(script.end(), {"tab 0", "click cmdEdit(" + numbers::general(button) + ")",
                                     std::string("close ") + dialog});
    }
    return script;
}

class Pair {
  public:
    Pair(Stage& going_on, Stage& opened) : going_on_(&going_on), opened_(&opened) {}

    /// Performs the line on both. @return the difference, empty when there is none
    std::string perform(const std::string& line) {
        const Stage::Step one = going_on_->perform(line);
        const Stage::Step other = opened_->perform(line);
        if (one != other) {
            return "step: " + line;
        }
        const std::string trace = withoutFolder(going_on_->trace(), going_on_->sandbox());
        const std::string other_trace = withoutFolder(opened_->trace(), opened_->sandbox());
        if (trace != other_trace && !asksForWhatIsNotKept(line)) {
            return "trace: " + line + ": " + trace + " / " + other_trace;
        }
        return difference(line);
    }

    std::string difference(const std::string& line) {
        forms::Program& one = going_on_->program();
        forms::Program& other = opened_->program();
        if (forms::stateOf(one) != forms::stateOf(other)) {
            return "state: " + line;
        }
        if (one.window().SSTab1.position() == forms::kTabResults &&
            contentOf(one.values().ResultsFilePath) != contentOf(other.values().ResultsFilePath)) {
            return "report: " + line;
        }
        return {};
    }

  private:
    Stage* going_on_;
    Stage* opened_;
};

}  // namespace

bool asksForWhatIsNotKept(const std::string& line) {
    const auto words = automation::splitLine(line);
    if (words.size() < 2 || (words[0].text != "get" && words[0].text != "value")) {
        return false;
    }
    const std::string& name = words[1].text;
    constexpr std::array kOthers{"frmIntDialog", "frmDialog",  "frmCoefDialog", "wbShow",
                                 "cmdPrint",     "cmdSaveRes", "ResultsFile",   "lblTime"};
    return std::any_of(kOthers.begin(), kOthers.end(),
                       [&](const char* other) { return name.find(other) != std::string::npos; });
}

KeptLife liveKept(const SandboxFolder& going_on, const SandboxFolder& opening, std::uint64_t seed,
                  int actions) {
    KeptLife life;
    Stage one(going_on);
    Stage other(opening);
    Generator generator(seed, Generator::Life::Endless);
    while (static_cast<int>(life.before.size()) < actions) {
        life.before.push_back(generator.next(one.program()));
        one.perform(life.before.back());
    }
    const forms::WindowState saved = forms::stateOf(one.program());
    one.perform(std::string("save ") + kProject);
    std::ofstream(opening.programFolder() + "/" + kProject, std::ios::binary)
        << contentOf(going_on.programFolder() + "/" + kProject);
    for (const std::string& line : leaving(one)) {
        one.perform(line);
    }
    other.perform(std::string("open ") + kProject);
    const std::string without_remarks = automation::JsonLine()
                                            .add("project", "opened")
                                            .add("path", kProject)
                                            .add("remarks", std::vector<std::string>())
                                            .text();
    if (other.trace() != without_remarks + "\n") {
        life.fault = "open: " + other.trace();
        return life;
    }
    if (forms::stateOf(other.program()) != saved) {
        life.fault = "opened: the state differs";
        return life;
    }
    other.perform("tab 1");
    Pair both(one, other);
    Script fixed = everything();
    const std::size_t count = fixed.size() + kActionsAfter;
    while (life.after.size() < count && life.fault.empty()) {
        life.after.push_back(life.after.size() < fixed.size() ? fixed[life.after.size()]
                                                              : generator.next(one.program()));
        life.fault = both.perform(life.after.back());
        if (one.program().ended()) {
            break;
        }
    }
    return life;
}

}  // namespace mero::monkey
