// SPDX-License-Identifier: MIT
/// A program in a temporary folder with doubles for everything around it, and the user's actions on it.
/// Every action is one event, as in the window and in a script.
#pragma once

#include <string>

#include "automation/headless_user.h"
#include "forms/calc/program.h"
#include "platform/clock.h"
#include "support/fake_locale.h"
#include "support/fake_rain_database.h"
#include "support/recording_desk.h"
#include "support/temporary_folder.h"

namespace mero::test {

/// Positions in the station list of the stations that the fake database knows.
constexpr int kBrno = 4;

class TestProgram {
  public:
    /// The program is started; what it showed while starting is in `desk`.
    TestProgram();
    /// Not started, so that the surroundings can be prepared first.
    enum class Start { Later };
    explicit TestProgram(Start later);

    void start() { program.start(); }
    [[nodiscard]] forms::frmCalc& window() { return program.window(); }
    [[nodiscard]] const data::modPublicVariables& values() const { return program.values(); }
    [[nodiscard]] forms::frmIntDialog& rainDialog() { return window().intDialog; }
    [[nodiscard]] forms::frmDialog& areaDialog() { return window().areaDialog; }
    [[nodiscard]] forms::frmCoefDialog& soilDialog() { return window().coefDialog; }

    // The user's actions.
    void type(platform::TextBox& box, const std::string& text);
    void paste(platform::TextBox& box, const std::string& text);
    void erase(platform::TextBox& box, int count);
    void leave(platform::TextBox& box) { user.leave(box); }
    void press(platform::TextBox& box, platform::Key key) { user.press(box, key); }
    template <typename Clickable>
    void click(Clickable& control) {
        user.click(control);
    }
    void select(platform::DropList& list, int position) { user.select(list, position); }
    void cell(platform::Grid& grid, int row, int column) { user.clickCell(grid, {row, column}); }
    void tab(int position) { user.chooseTab(window().SSTab1, position); }
    void close(platform::Form& form) { user.close(form); }

    // Whole dialogues.
    /// Enters the intensity as own value in the row of 15 min of the rain dialog, picks the row and confirms.
    void giveRain(const std::string& intensity);
    /// Enters one partial area with the runoff coefficient 1 and confirms.
    void giveArea(const std::string& area);
    /// Removes all partial areas and confirms.
    void takeAreaAway();
    /// Enters area 1000 m2, kf 1e-4 m/s and 150 l/s.ha for 15 min.
    void giveSite();
    /// Chooses a decentralised type by its number, on the design tab.
    void chooseType(data::FacilityType type);

    TemporaryFolder folder;
    RecordingDesk desk;
    platform::FrozenClock clock{{2026, 11, 20, 14, 5, 9}};
    FakeLocale locale;
    FakeRainDatabase rain;
    forms::Program program;
    automation::HeadlessUser user{program};
};

}  // namespace mero::test
