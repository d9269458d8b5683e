// SPDX-License-Identifier: MIT
/// One program in an isolated environment: a sandbox for its files, invented rain, a frozen clock.
/// Script lines are performed one by one; the messages and errors of the last one are kept.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "automation/headless_user.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "forms/calc/program.h"
#include "monkey/invented_rain.h"
#include "monkey/sandbox_folder.h"
#include "platform/clock.h"
#include "platform/desk.h"
#include "platform/locale_settings.h"

namespace mero::monkey {

/// Traces like the scripts' desk, keeps the messages and errors of the running action, and allows copies of
/// the report only inside the sandbox.
class StageDesk : public automation::TraceDesk {
  public:
    StageDesk(std::ostream& trace, const SandboxFolder& sandbox);

    void showMessage(const platform::Message& message) override;
    void reportError(const RuntimeError& error) override;
    std::optional<std::string> askSavePath(const std::string& suggested_path) override;

    std::vector<platform::Message> messages;
    std::vector<RuntimeError> errors;

  private:
    const SandboxFolder* sandbox_;
};

class Stage {
  public:
    using Step = automation::ScriptRunner::Step;

    /// Starts the program. @param sandbox outlives the stage; its program folder is emptied first
    explicit Stage(const SandboxFolder& sandbox);

    Step perform(const std::string& line);

    [[nodiscard]] forms::Program& program() { return program_; }
    /// The lines' history of steps; before the first line.
    void workOn(forms::ProjectWork& work) { runner_.workOn(work); }
    [[nodiscard]] const SandboxFolder& sandbox() const { return *sandbox_; }
    /// Messages of the last line performed.
    [[nodiscard]] const std::vector<platform::Message>& messages() const { return desk_.messages; }
    [[nodiscard]] const std::vector<RuntimeError>& errors() const { return desk_.errors; }
    [[nodiscard]] std::string trace() const { return trace_.str(); }
    /// Why the last line could not be performed.
    [[nodiscard]] std::string diagnostics() const { return diagnostics_.str(); }

  private:
    const SandboxFolder* sandbox_;
    std::ostringstream trace_;
    std::ostringstream diagnostics_;
    StageDesk desk_;
    platform::FrozenClock clock_;
    platform::ProgramLocale locale_{",", " ", ";"};
    InventedRain rain_;
    forms::Program program_;
    automation::HeadlessUser user_;
    automation::ScriptRunner runner_;
};

}  // namespace mero::monkey
