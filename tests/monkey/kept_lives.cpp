// SPDX-License-Identifier: MIT
/// Many lives that are saved and opened in a fresh program. Exit status 1 at the first that does not go on as
/// it would have. With --write, scripts of such lives for the real program.
#include <chrono>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "automation/script_line.h"
#include "monkey/kept_life.h"
#include "monkey/random.h"
#include "monkey/written_script.h"
#include "platform/numbers/number_text.h"

namespace {

using namespace mero::monkey;

constexpr const char* kHelp = "usage: mero-kept-lives [--lives N] [--seed N] [--write FOLDER]\n";
constexpr int kMostActions = 160;

struct Options {
    int lives = 300;
    int seed = 1;
    std::string write_to;
};

int wholeNumber(const std::string& text) {
    const auto number = mero::automation::wholeNumber(text);
    if (!number) {
        throw std::invalid_argument(text);
    }
    return *number;
}

Options parse(std::span<char*> arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        const std::string_view name = arguments[i];
        if (i + 1 == arguments.size()) {
            throw std::invalid_argument(std::string(name));
        }
        const std::string value = arguments[i + 1];
        if (name == "--lives") {
            options.lives = wholeNumber(value);
        } else if (name == "--seed") {
            options.seed = wholeNumber(value);
        } else if (name == "--write") {
            options.write_to = value;
        } else {
            throw std::invalid_argument(std::string(name));
        }
    }
    return options;
}

void write(const std::string& path, const Script& script) {
    std::ofstream file(path, std::ios::binary);
    for (const std::string& line : script) {
        file << line << '\n';
    }
}

void report(const KeptLife& life, int seed) {
    std::cout << "seed " << seed << ", after " << life.before.size() << " + " << life.after.size()
              << " actions: " << life.fault << "\n";
    for (const std::string& line : life.before) {
        std::cout << line << '\n';
    }
    std::cout << "save projekt.json\n";
    for (const std::string& line : life.after) {
        std::cout << line << '\n';
    }
}

int run(const Options& options) {
    const auto start = std::chrono::steady_clock::now();
    const SandboxFolder going_on;
    const SandboxFolder opening;
    std::size_t actions = 0;
    for (int seed = options.seed; seed < options.seed + options.lives; ++seed) {
        Random random(static_cast<std::uint64_t>(seed));
        const int before = 1 + random.below(kMostActions);
        const KeptLife life = liveKept(going_on, opening, static_cast<std::uint64_t>(seed), before);
        if (!options.write_to.empty()) {
            const std::string name = options.write_to + "/" + mero::numbers::general(seed);
            write(name + ".before", written(going_on, life.before));
            Script after = written(going_on, life.after);
            std::erase_if(after, asksForWhatIsNotKept);
            write(name + ".after", after);
        }
        if (!life.fault.empty()) {
            report(life, seed);
            return 1;
        }
        actions += life.before.size() + life.after.size();
    }
    const auto took =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start);
    std::cout << options.lives << " lives, " << actions << " actions, " << took.count()
              << " s: what was opened went on as what was saved" << std::endl;
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run(parse(std::span(argv, static_cast<std::size_t>(argc)).subspan(1)));
    } catch (const std::invalid_argument&) {
        std::cerr << kHelp;
        return 2;
    }
}
