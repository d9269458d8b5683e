// mero-batch: the program without any window system.
// The first argument is the command.
#include <iostream>
#include <span>
#include <string_view>
#include <vector>

#include "app/batch/run_command.h"

namespace {

constexpr const char* kHelp =
    "usage: mero-batch COMMAND [ARGUMENTS]\n"
    "\n"
    "  run SCRIPT   drives the forms from a script and prints the trace (mero-batch run --help)\n"
    "\n"
    "  --help       this text\n"
    "  --version    the version\n";

}  // namespace

int main(int argc, char** argv) {
    constexpr int kUnusable = 2;
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
    if (arguments.front() == "run") {
        return mero::app::runCommand(std::span(arguments).subspan(1));
    }
    std::cerr << "mero-batch: unknown command " << arguments.front() << " (see mero-batch --help)\n";
    return kUnusable;
}
