// SPDX-License-Identifier: MIT
/// Runs scripts on a whole program and keeps trace, diagnostics and exit status.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "automation/headless_user.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "support/fake_locale.h"
#include "support/fake_rain_database.h"
#include "support/temporary_folder.h"

namespace mero::automation::test {

class ScriptedProgram {
  public:
    ScriptedProgram() { program.start(); }

    /// Runs the script. In its trace the program's folder is replaced by `<folder>`.
    int run(const std::string& text) {
        std::istringstream script(text);
        return ScriptRunner(program, user, desk, diagnostics, "s.mero").run(script);
    }
    /// Lines that were printed since the last call.
    std::vector<std::string> take() {
        std::vector<std::string> lines;
        std::istringstream printed(trace.str());
        trace.str("");
        for (std::string line; std::getline(printed, line);) {
            const std::size_t at = line.find(folder.path());
            lines.push_back(at == std::string::npos ? line
                                                    : line.replace(at, folder.path().size(), "<folder>"));
        }
        return lines;
    }
    std::vector<std::string> traceOf(const std::string& text) {
        EXPECT_EQ(run(text), 0) << diagnostics.str();
        return take();
    }

    mero::test::TemporaryFolder folder;
    std::ostringstream trace;
    std::ostringstream diagnostics;
    TraceDesk desk{trace, nullptr, folder.path()};
    platform::FrozenClock clock{{2026, 11, 20, 14, 5, 9}};
    mero::test::FakeLocale locale;
    mero::test::FakeRainDatabase rain;
    forms::Program program{forms::Surroundings{desk, clock, locale, rain, folder.path()}};
    HeadlessUser user{program};
};

}  // namespace mero::automation::test
