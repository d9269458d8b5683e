// SPDX-License-Identifier: MIT
/// A running program without a window and the hands of its user, for the tests of the designs.
/// Whatever a user could not reach (hidden, disabled, on another tab) the hands refuse to touch.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "data/rain_database.h"
#include "forms/calc/program.h"
#include "platform/clock.h"
#include "platform/locale_settings.h"
#include "support/message_box.h"
#include "support/recording_desk.h"

namespace mero::forms::test {

using mero::test::critical;
using mero::test::exclamation;
using mero::test::information;
using mero::test::MessageBox;

/// The designs use own values only: nothing is read.
class NoRainDatabase : public data::RainDatabase {
  public:
    [[nodiscard]] data::StationTable read(std::int16_t /*station_number*/,
                                          const std::string& /*path*/) override {
        return {};
    }
};

/// A row of the rain table as it is typed.
struct TypedRain {
    std::string duration_min;
    std::string intensity_l_s_ha;
};

/// Durations 5 to 120 min with intensities that fall as those of a real station do.
extern const std::vector<TypedRain> kStorm;

/// One project from the start of the program on.
class Project {
  public:
    Project();

    frmCalc& window() { return program_.window(); }
    [[nodiscard]] const data::modPublicVariables& values() const { return program_.values(); }
    /// Messages since the last call.
    std::vector<MessageBox> messages() { return desk_.takeBoxes(); }
    /// Numbers of the reported run-time errors since the last call.
    std::vector<int> errors() { return desk_.takeErrorNumbers(); }
    [[nodiscard]] bool ended() const { return program_.ended(); }

    // The hands.
    void tab(int position);
    /// Pastes over the whole text: one change.
    void set(platform::TextBox& box, const std::string& text);
    /// Presses the keys one by one at the end of the text.
    void type(platform::TextBox& box, const std::string& keys);
    void clear(platform::TextBox& box) { set(box, ""); }
    void click(platform::Button& button);
    void click(platform::OptionButton& option);
    void click(platform::CheckBox& box);
    void cell(platform::Grid& grid, int row, int column);
    void select(platform::DropList& list, int position);
    void spin(platform::UpDown::Direction direction, int times = 1);
    void leave(platform::TextBox& box);

    // Whole dialogs.
    /// Own rain values: the rows given, the others with intensity 0; then a row is picked (0: none).
    void rains(const std::vector<TypedRain>& rows, int picked_row = 0);
    /// One partial area with runoff coefficient 1, so that it is the reduced area.
    void area(const std::string& area_m2);
    /// Filtration coefficient of the subsoil, on the first tab.
    void filtration(const std::string& coefficient_m_s);
    /// Area, filtration coefficient, rains.
    void site(const std::string& area_m2, const std::string& coefficient_m_s,
              const std::vector<TypedRain>& rows = kStorm, int picked_row = 0);

    // The types.
    /// Group "Decenralizované" and a type of it.
    void choose(FacilityType type);
    /// Group "Centralizované", whose only type is the tank.
    void chooseTank();
    void calculate() { click(window().cmdCalcul[window().SelectedType]); }

    /// "5 min, 300 l/s.ha" of the picked design rain.
    [[nodiscard]] std::string pickedRain() const;
    /// The type whose panel is on screen, 0 for none.
    [[nodiscard]] FacilityType shownType();

  private:
    void act(const platform::Control& control, const std::function<void()>& action);

    mero::test::RecordingDesk desk_;
    platform::FrozenClock clock_{{2026, 11, 20, 14, 5, 9}};
    platform::ProgramLocale locale_{",", "\u00A0", ";"};
    NoRainDatabase rain_database_;
    Program program_{{desk_, clock_, locale_, rain_database_, "/nowhere"}};
};

/// A test of one project.
class DesignTest : public ::testing::Test {
  protected:
    Project project;
    frmCalc& window = project.window();
    const data::modPublicVariables& values = project.values();
};

}  // namespace mero::forms::test
