// SPDX-License-Identifier: MIT
/// Automation scripts: any bytes, line by line, on a program in a sandbox.
/// After each line all that the monkey watches must hold, and the trace must be JSON lines.
#include <cstdint>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "monkey/sandbox_folder.h"
#include "monkey/stage.h"
#include "monkey/watcher.h"
#include "support/require.h"

namespace {

using mero::fuzz::require;
using mero::monkey::SandboxFolder;
using mero::monkey::Stage;
using mero::monkey::Watcher;

// Enough for what one line can start; more only takes the fuzzer's time.
constexpr int kMostLines = 120;
constexpr std::size_t kMostCharacters = 200;

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
        if (line.size() > kMostCharacters) {
            continue;
        }
        const std::string fault = watcher.perform(line);
        require(fault.empty(), fault.empty() ? fault : std::string(fault).append(" after: ").append(line));
        if (watcher.lastStep() == Stage::Step::Unusable) {
            require(!stage.diagnostics().empty(), "an unusable line is explained");
            continue;  // the rest of the input is worth trying
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
