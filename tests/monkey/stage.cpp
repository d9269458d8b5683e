// SPDX-License-Identifier: MIT
/// Implements the stage's desk and performs single lines.
#include "monkey/stage.h"

namespace mero::monkey {
namespace {

constexpr platform::DateTime kMoment{
    .year = 2026, .month = 11, .day = 20, .hour = 14, .minute = 5, .second = 9};

}  // namespace

StageDesk::StageDesk(std::ostream& trace, const SandboxFolder& sandbox)
    : TraceDesk(trace, nullptr, sandbox.programFolder()), sandbox_(&sandbox) {}

void StageDesk::showMessage(const platform::Message& message) {
    messages.push_back(message);
    TraceDesk::showMessage(message);
}

void StageDesk::reportError(const RuntimeError& error) {
    errors.push_back(error);
    TraceDesk::reportError(error);
}

std::optional<std::string> StageDesk::askSavePath(const std::string& suggested_path) {
    std::optional<std::string> answer = TraceDesk::askSavePath(suggested_path);
    return answer && sandbox_->contains(*answer) ? answer : std::nullopt;
}

Stage::Stage(const SandboxFolder& sandbox)
    : sandbox_(&sandbox),
      desk_(trace_, sandbox),
      clock_(kMoment),
      program_({desk_, clock_, locale_, rain_, sandbox.programFolder()}),
      user_(program_),
      runner_(program_, user_, desk_, diagnostics_, "script") {
    sandbox.empty();
    program_.start();
}

Stage::Step Stage::perform(const std::string& line) {
    trace_.str({});
    diagnostics_.str({});
    desk_.messages.clear();
    desk_.errors.clear();
    return runner_.execute(line, 1);
}

}  // namespace mero::monkey
