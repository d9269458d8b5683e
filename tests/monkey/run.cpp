// SPDX-License-Identifier: MIT
/// Runs, replays and shortens lives of the monkey.
#include "monkey/run.h"

#include "monkey/stage.h"
#include "monkey/watcher.h"

namespace mero::monkey {
namespace {

/// The rule that was broken.
std::string kindOf(const std::string& fault) {
    return fault.substr(0, fault.find(':'));
}

}  // namespace

Life live(const SandboxFolder& sandbox, std::uint64_t seed, int actions, Generator::Life kind) {
    Stage stage(sandbox);
    Watcher watcher(stage);
    Generator generator(seed, kind);
    Life life;
    while (static_cast<int>(life.script.size()) < actions) {
        life.script.push_back(generator.next(stage.program()));
        life.fault = watcher.perform(life.script.back());
        if (life.fault.empty() && watcher.lastStep() == Stage::Step::Unusable) {
            life.fault = "script: " + stage.diagnostics();
        }
        if (!life.fault.empty()) {
            return life;
        }
        if (watcher.lastStep() == Stage::Step::ProgramEnded) {
            life.ended = true;
            break;
        }
    }
    if (const std::string stray = sandbox.strayEntry(); !stray.empty()) {
        life.fault = "files: written outside of the folder: " + stray;
    }
    return life;
}

std::string replay(const SandboxFolder& sandbox, const Script& script) {
    Stage stage(sandbox);
    Watcher watcher(stage);
    for (const std::string& line : script) {
        std::string fault = watcher.perform(line);
        if (!fault.empty() || watcher.lastStep() == Stage::Step::ProgramEnded) {
            return fault;
        }
    }
    return {};
}

Script shortest(const SandboxFolder& sandbox, const Life& life) {
    const std::string kind = kindOf(life.fault);
    return shrink(life.script, [&](const Script& script) { return kindOf(replay(sandbox, script)) == kind; });
}

}  // namespace mero::monkey
