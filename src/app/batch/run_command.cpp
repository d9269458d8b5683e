// SPDX-License-Identifier: MIT
/// Creates the program without a window and runs the script on it.
/// Only the trace goes to standard output.
#include "app/batch/run_command.h"

#include <fstream>
#include <iostream>
#include <memory>

#include "app/batch/pdf_program.h"
#include "app/common/options.h"
#include "app/common/program_folder.h"
#include "app/common/standard_streams.h"
#include "automation/headless_user.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "data/rain_database.h"

namespace mero::app {
namespace {

constexpr int kUnusable = 2;

constexpr const char* kHelp =
    "usage: mero-batch run [--folder DIR] [--clock 2026-11-20T14:05:09] SCRIPT\n"
    "\n"
    "Drives the forms from a script without a window and prints the trace, one JSON object per line.\n"
    "\n"
    "  SCRIPT         a UTF-8 file, - for standard input\n"
    "  --folder DIR   the program's folder: mero.mdb, Webs, the report file\n"
    "  --clock TIME   freezes date and time\n"
    "\n"
    "Exit status: 0 the script ran to its end, 1 a run-time error ended the program or the trace could not "
    "be\n"
    "written, 2 unusable script or arguments.\n";

int runScript(const RunOptions& options, std::istream& script) {
    const std::string folder = folderOrDefault(options.folder);
    if (!folderExists(folder)) {
        std::cerr << "mero-batch: " << folderMissing(folder) << '\n';
    }
    automation::TraceDesk desk(std::cout, nullptr, folder);
    desk.makePdfBy(makePdfByWindowProgram);
    std::unique_ptr<platform::Clock> clock = std::make_unique<platform::SystemClock>();
    if (options.frozen_moment) {
        clock = std::make_unique<platform::FrozenClock>(*options.frozen_moment);
    }
    platform::ProgramLocale locale;
    data::MdbRainDatabase rain_database;
    forms::Program program({desk, *clock, locale, rain_database, folder});
    automation::HeadlessUser user(program);
    automation::ScriptRunner runner(program, user, desk, std::cerr, options.script);
    program.start();
    const int status = runner.run(script);
    return std::cout ? status : traceFailed("mero-batch");
}

}  // namespace

int runCommand(std::span<const std::string_view> arguments) {
    try {
        const RunOptions options = parseRunOptions(arguments, ScriptArgument::Plain);
        if (options.help) {
            std::cout << kHelp;
            return 0;
        }
        if (options.script.empty()) {
            throw UsageError("which script? (see mero-batch run --help)");
        }
        if (options.script == "-") {
            return runScript(options, std::cin);
        }
        std::ifstream script(options.script);
        if (!script || script.peek() == std::ifstream::traits_type::eof()) {
            if (!script.eof()) {
                throw UsageError("cannot read the script " + options.script);
            }
            script.clear();
        }
        return runScript(options, script);
    } catch (const UsageError& error) {
        std::cerr << "mero-batch: " << error.what() << '\n';
        return kUnusable;
    }
}

}  // namespace mero::app
