// SPDX-License-Identifier: MIT
/// mero-monkey [--seed N] [--actions N]: random actions on the forms, checked after each.
/// A fault is printed with the shortest script that reproduces it, which is also written to monkey-SEED.mero.
#include <algorithm>
#include <chrono>
#include <fstream>
#include <iostream>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "automation/script_line.h"
#include "monkey/run.h"
#include "monkey/written_script.h"
#include "platform/numbers/number_text.h"

namespace {

using mero::monkey::Generator;
using mero::monkey::Life;
using mero::monkey::SandboxFolder;
using mero::monkey::Script;
namespace numbers = mero::numbers;

constexpr int kActionsOfALife = 500;
constexpr const char* kHelp =
    "usage: mero-monkey [--seed N] [--actions N]      lives of at most 500 actions with the seeds N, N+1, "
    "...\n"
    "       mero-monkey --write FILE [--life endless|short] [--seed N] [--actions N]\n"
    "                                                 one life as a script; an endless one does not end by "
    "itself\n"
    "       mero-monkey --replay FILE                 checks a script\n";

struct Options {
    int seed = 1;
    int actions = 10000;
    std::string write_to;
    Generator::Life life = Generator::Life::Endless;
    std::string replay_from;
};

/// @throws std::invalid_argument for unknown words
Options parse(std::span<char*> words) {
    Options options;
    for (std::size_t at = 0; at < words.size(); at += 2) {
        const std::string_view name = words[at];
        const std::string value = at + 1 < words.size() ? words[at + 1] : "";
        const std::optional<int> number = mero::automation::wholeNumber(value);
        if (name == "--seed" && number) {
            options.seed = *number;
        } else if (name == "--actions" && number) {
            options.actions = *number;
        } else if (name == "--life" && (value == "endless" || value == "short")) {
            options.life = value == "short" ? Generator::Life::Short : Generator::Life::Endless;
        } else if (name == "--write" && !value.empty()) {
            options.write_to = value;
        } else if (name == "--replay" && !value.empty()) {
            options.replay_from = value;
        } else {
            throw std::invalid_argument(std::string(name));
        }
    }
    return options;
}

void write(const std::string& path, const std::string& comment, const Script& script) {
    std::ofstream file(path, std::ios::binary);
    file << "# " << comment << '\n';
    for (const std::string& line : script) {
        file << line << '\n';
    }
}

void report(const SandboxFolder& sandbox, const Life& life, int seed) {
    std::cout << "seed " << seed << ", action " << life.script.size() << ": " << life.fault << std::endl;
    const Script script = shortest(sandbox, life);
    std::cout << "the shortest script that shows it:\n";
    for (const std::string& line : script) {
        std::cout << line << '\n';
    }
    const std::string path = "monkey-" + numbers::general(seed) + ".mero";
    write(path, life.fault, script);
    std::cout << "left in " << path << std::endl;
}

int writeScript(const SandboxFolder& sandbox, const Options& options) {
    const auto seed = static_cast<std::uint64_t>(options.seed);
    const Life life = live(sandbox, seed, options.actions, options.life);
    write(options.write_to, "Random actions, seed " + numbers::general(options.seed),
          written(sandbox, life.script));
    std::cout << life.script.size() << " actions" << std::endl;
    return life.fault.empty() ? 0 : 1;
}

int replayScript(const SandboxFolder& sandbox, const std::string& path) {
    std::ifstream file(path);
    Script script;
    for (std::string line; std::getline(file, line);) {
        script.push_back(line);
    }
    const std::string fault = replay(sandbox, script);
    std::cout << (fault.empty() ? "no fault" : fault) << std::endl;
    return fault.empty() ? 0 : 1;
}

int roam(const SandboxFolder& sandbox, const Options& options) {
    const auto start = std::chrono::steady_clock::now();
    int done = 0;
    int lives = 0;
    int ended = 0;
    for (int seed = options.seed; done < options.actions; ++seed) {
        const int actions = std::min(kActionsOfALife, options.actions - done);
        const Life life = live(sandbox, static_cast<std::uint64_t>(seed), actions, Generator::Life::Short);
        if (!life.fault.empty()) {
            report(sandbox, life, seed);
            return 1;
        }
        done += static_cast<int>(life.script.size());
        ended += life.ended ? 1 : 0;
        ++lives;
    }
    const auto took =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    std::cout << done << " actions in " << lives << " lives, " << ended << " of them ended by the program, "
              << took.count() << " s, no fault" << std::endl;
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const Options options = parse(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
        const SandboxFolder sandbox;
        if (!options.replay_from.empty()) {
            return replayScript(sandbox, options.replay_from);
        }
        return options.write_to.empty() ? roam(sandbox, options) : writeScript(sandbox, options);
    } catch (const std::invalid_argument&) {
        std::cerr << kHelp;
        return 2;
    }
}
