// SPDX-License-Identifier: MIT
/// A running program that nobody sees: for states that are made without touching the user's window.
#pragma once

#include "forms/calc/program.h"
#include "platform/clock.h"
#include "platform/locale_settings.h"

namespace mero::forms {

/// Takes everything and does nothing.
class QuietDesk : public platform::Desk {
  public:
    void showMessage(const platform::Message& /*message*/) override {}
    void reportError(const RuntimeError& /*error*/) override {}
    void openAddress(const std::string& /*address*/) override {}
    void formOpened(const std::string& /*form*/) override {}
    void formClosed(const std::string& /*form*/) override {}
    void navigated(const std::string& /*view*/, const std::string& /*path*/) override {}
    void openPrintPreview(const std::string& /*path*/) override {}
    std::optional<std::string> askSavePath(const std::string& /*suggested_path*/) override {
        return std::nullopt;
    }
    void saved(const std::string& /*path*/) override {}
    void ended() override {}
};

class QuietProgram {
  public:
    /// Started. @param rain_database and @param folder are the user's; nothing is written there
    QuietProgram(data::RainDatabase& rain_database, const std::string& folder)
        : program_({desk_, clock_, locale_, rain_database, folder}) {
        program_.start();
    }

    [[nodiscard]] Program& program() { return program_; }

  private:
    QuietDesk desk_;
    platform::FrozenClock clock_{{.year = 2000, .month = 1, .day = 1, .hour = 0, .minute = 0, .second = 0}};
    platform::ProgramLocale locale_{".", " ", ","};
    Program program_;
};

}  // namespace mero::forms
