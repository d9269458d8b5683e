// SPDX-License-Identifier: MIT
/// Creates the program without a window and runs the script on it.
/// Only the trace goes to standard output.
#include "app/batch/run_command.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <iostream>
#include <memory>
#include <sstream>
#include <streambuf>
#include <utility>

#include "app/batch/pdf_program.h"
#include "app/common/end_signals.h"
#include "app/common/options.h"
#include "app/common/program_folder.h"
#include "app/common/standard_streams.h"
#include "automation/headless_user.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "data/rain_database.h"
#include "platform/files/bounded_read.h"

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

/// Standard input that is at its end when the program has to end: std::cin waits on.
class Input : public std::streambuf {
  public:
    explicit Input(const EndSignals& signals) : signals_(&signals) {}

  protected:
    int_type underflow() override {
        std::array<pollfd, 2> ready{pollfd{STDIN_FILENO, POLLIN, 0},
                                    pollfd{signals_->descriptor(), POLLIN, 0}};
        ssize_t count = -1;
        do {
            static_cast<void>(::poll(ready.data(), ready.size(), -1));
            if (signals_->received()) {
                return traits_type::eof();
            }
            count = ::read(STDIN_FILENO, bytes_.data(), bytes_.size());
        } while (count < 0 && errno == EINTR);
        if (count <= 0) {
            return traits_type::eof();
        }
        setg(bytes_.data(), bytes_.data(), bytes_.data() + count);
        return traits_type::to_int_type(bytes_.front());
    }

  private:
    const EndSignals* signals_;
    std::array<char, 4096> bytes_{};
};

int runScript(const RunOptions& options, std::istream& script, const EndSignals& signals) {
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
    const int status = runner.run(script, [&signals] { return signals.received(); });
    if (signals.received()) {
        program.close();
        signals.passOn();
    }
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
        const EndSignals signals;
        if (options.script == "-") {
            Input input(signals);
            std::istream lines(&input);
            return runScript(options, lines, signals);
        }
        platform::FileContent script = platform::readTextFile(options.script);
        if (script.failure != platform::ReadFailure::None) {
            throw UsageError("cannot read the script " + options.script + platform::detailOf(script.failure));
        }
        std::istringstream lines(std::move(script.bytes));
        return runScript(options, lines, signals);
    } catch (const UsageError& error) {
        std::cerr << "mero-batch: " << error.what() << '\n';
        return kUnusable;
    }
}

}  // namespace mero::app
