// SPDX-License-Identifier: MIT
/// Automation scripts: arbitrary bytes, performed line by line on a program in a sandbox.
/// After each line the monkey's rules must hold, and the trace must consist of JSON lines.
#include <cstdint>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "automation/script_line.h"
#include "monkey/sandbox_folder.h"
#include "monkey/stage.h"
#include "monkey/watcher.h"
#include "support/require.h"

namespace {

using mero::fuzz::require;
using mero::monkey::SandboxFolder;
using mero::monkey::Stage;
using mero::monkey::Watcher;

// Enough for the later effects of a line; more lines only slow the fuzzer down.
constexpr int kMostLines = 120;
constexpr std::size_t kMostCharacters = 200;

/// Actions on projects write any path, and restore fields whose rules hold for typed ones.
bool isOfProjects(const std::string& line) {
    try {
        const auto words = mero::automation::splitLine(line);
        const std::string action = words.empty() ? "" : words.front().text;
        return action == "open" || action == "save" || action == "new";
    } catch (const mero::automation::ScriptError&) {
        return false;
    }
}

void requireJsonLines(const std::string& trace) {
    std::istringstream lines(trace);
    std::string line;
    while (std::getline(lines, line)) {
        require(nlohmann::json::accept(line), "the trace is JSON: " + line);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const SandboxFolder sandbox;
    Stage stage(sandbox);
    Watcher watcher(stage);
    std::istringstream script(std::string(data, data + size));
    std::string line;
    bool saved = false;
    for (int count = 0; count < kMostLines && std::getline(script, line); ++count) {
        if (line.size() > kMostCharacters || isOfProjects(line)) {
            continue;
        }
        const std::string fault = watcher.perform(line);
        require(fault.empty(), fault.empty() ? fault : std::string(fault).append(" after: ").append(line));
        if (watcher.lastStep() == Stage::Step::Unusable) {
            require(!stage.diagnostics().empty(), "an unusable line is explained");
            continue;  // try the rest of the input
        }
        saved = saved || stage.trace().find("\"saved\"") != std::string::npos;
        requireJsonLines(stage.trace());
        if (watcher.lastStep() == Stage::Step::ProgramEnded) {
            break;
        }
    }
    if (saved) {
        const std::string stray = sandbox.strayEntry();
        require(stray.empty(), "nothing is written beside the program's folder: " + stray);
    }
    return 0;
}
