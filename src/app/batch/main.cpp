// SPDX-License-Identifier: MIT
/// mero-batch: the program without a window system.
/// Runs the command that the first argument names.
#include <array>
#include <iostream>
#include <span>
#include <string_view>
#include <vector>

#include "app/batch/design_command.h"
#include "app/batch/rain_command.h"
#include "app/batch/run_command.h"
#include "app/batch/stations_command.h"
#include "app/batch/sweep_command.h"
#include "app/common/standard_streams.h"

namespace {

struct Command {
    std::string_view name;
    int (*run)(std::span<const std::string_view> arguments);
};

constexpr std::array<Command, 5> kCommands{{
    {"run", mero::app::runCommand},
    {"design", mero::app::designCommand},
    {"sweep", mero::app::sweepCommand},
    {"stations", mero::app::stationsCommand},
    {"rain", mero::app::rainCommand},
}};

constexpr const char* kHelp =
    "usage: mero-batch COMMAND [ARGUMENTS]\n"
    "\n"
    "  run SCRIPT              drives the forms from a script and prints the trace\n"
    "  design PROJECT.json     designs a project file and prints results and verdicts\n"
    "  sweep PROJECT.json      designs all variants of a project file, as CSV and as a plot\n"
    "  stations [STATION]      lists the rain-gauge stations, or prints the table of one\n"
    "  rain SOURCE             rain table of a file, of the total of a day, or of measured rain\n"
    "\n"
    "  COMMAND --help          more about a command\n"
    "  --help                  this text\n"
    "  --version               the version\n";

}  // namespace

int main(int argc, char** argv) {
    constexpr int kUnusable = 2;
    mero::app::holdStandardStreams();
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (arguments.empty()) {
        std::cerr << kHelp;
        return kUnusable;
    }
    if (arguments.front() == "--help" || arguments.front() == "-h") {
        std::cout << kHelp;
        return 0;
    }
    if (arguments.front() == "--version") {
        std::cout << "mero-batch " MERO_VERSION "\n";
        return 0;
    }
    for (const Command& command : kCommands) {
        if (arguments.front() == command.name) {
            return command.run(std::span(arguments).subspan(1));
        }
    }
    std::cerr << "mero-batch: unknown command " << arguments.front() << " (see mero-batch --help)\n";
    return kUnusable;
}
