// SPDX-License-Identifier: MIT
/// Removes answers to save dialogs and inserts queries.
#include "monkey/written_script.h"

#include <array>
#include <string>

#include "automation/script_line.h"
#include "monkey/stage.h"

namespace mero::monkey {
namespace {

constexpr std::size_t kActionsBetweenLooks = 250;

constexpr std::array kValues{"RedukovanaPlocha",
                             "IntenzitaDeste",
                             "DobaTrvani",
                             "VybranaIntenzita",
                             "VybranaDoba",
                             "VybranaStanice",
                             "DilciPlocha",
                             "OdtokovySoucinitel",
                             "TypPovrchu",
                             "IntenzitaStanice",
                             "ResultsFilePath",
                             "SelectedType",
                             "SoilVariant",
                             "ShaftShape",
                             "txtHPV",
                             "txtSoucFiltrace",
                             "D_i",
                             "D_a",
                             "s_RR",
                             "Q_dr"};

Script lookAtEverything(const SandboxFolder& sandbox) {
    Stage stage(sandbox);
    Script look;
    for (const platform::Form* form : stage.program().forms()) {
        for (const platform::Control* control : form->controls()) {
            look.push_back("get " + form->name() + "." + control->name());
        }
    }
    for (const char* value : kValues) {
        look.push_back(std::string("value ") + value);
    }
    return look;
}

bool leadsOut(const SandboxFolder& sandbox, const std::string& line) {
    const auto words = automation::splitLine(line);
    if (words.front().text != "answer-save" || words.size() < 2) {
        return false;
    }
    const std::string& answer = words[1].text;
    return answer.starts_with('/') || !sandbox.contains(sandbox.programFolder() + "/" + answer);
}

}  // namespace

Script written(const SandboxFolder& sandbox, const Script& life) {
    const Script look = lookAtEverything(sandbox);
    Script script;
    std::size_t actions = 0;
    for (const std::string& line : life) {
        if (!leadsOut(sandbox, line)) {
            script.push_back(line);
        }
        if (++actions % kActionsBetweenLooks == 0 || actions == life.size()) {
            script.insert(script.end(), look.begin(), look.end());
        }
    }
    return script;
}

}  // namespace mero::monkey
