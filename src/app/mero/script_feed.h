// SPDX-License-Identifier: MIT
/// Passes a script's lines to the runner while the window runs: from a file or from standard input.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

#include "automation/script_runner.h"

namespace mero::app {

class ScriptFeed : public QObject {
  public:
    /// @param finished called once with the exit status: at the end of the script or of the program, or at an
    ///                 unusable line
    ScriptFeed(automation::ScriptRunner& runner, std::function<void(int exit_status)> finished);

    /// Performs all lines of a text.
    void feedAll(const std::string& script);
    /// Performs the lines of standard input as they arrive.
    void feedStandardInput();

  private:
    void readMore();
    /// @param search_from where in the pending text the next line break may stand at the earliest
    void performLines(std::size_t search_from);
    void perform(const std::string& line);
    void finish();

    automation::ScriptRunner* runner_;
    std::function<void(int)> finished_;
    std::unique_ptr<QSocketNotifier> notifier_;
    std::string pending_;
    int line_number_ = 0;
    bool performing_ = false;
    bool done_ = false;
    automation::ScriptRunner::Step last_ = automation::ScriptRunner::Step::Continue;
};

}  // namespace mero::app
