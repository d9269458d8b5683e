// SPDX-License-Identifier: MIT
/// Enters a project into a window as a user does: each value by an event, in the order that design/design.h
/// documents. For files that hold inputs only.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/calc/program.h"
#include "project/project.h"

namespace mero::forms {

class ProjectEntry {
  public:
    /// @param wanted whether the value of a path is entered; the others stay as the window has them
    ProjectEntry(Program& program, std::function<bool(std::string_view path)> wanted)
        : program_(&program), wanted_(std::move(wanted)) {}

    /// Texts, site, type and the fields of its panel, down to the OK of the pipes. The button that calculates
    /// is left to the user.
    void enter(const project::Project& project);
    /// Texts, groundwater, rain, areas and filtration coefficient.
    void enterSite(const project::Project& project);
    /// The type of the facility and the fields of its panel.
    void enterFacility(const design::Facility& facility);

    /// Names of the controls that a user could not reach when they were to be used.
    [[nodiscard]] const std::vector<std::string>& unreachable() const { return unreachable_; }

  private:
    [[nodiscard]] bool wants(design::Input input) const { return wanted_(design::info(input).path); }
    template <typename Control, typename Action>
    void act(Control& control, Action action);
    template <typename Control>
    void click(Control& control);
    void fill(platform::TextBox& box, const std::string& text);
    void fill(platform::TextBox& box, float number);
    void leave(platform::TextBox& box);
    void cell(platform::Grid& grid, int row, int column);
    void tab(int position);

    void enterTexts(const project::Texts& texts);
    void enterRain(const project::RainChoice& rain);
    void enterRainTable(const project::RainChoice& rain);
    void enterAreas(const project::Project& project);
    void chooseType(FacilityType type);
    void chooseSoil(const platform::ControlArray<platform::OptionButton>& options, int option);
    void enterNumbers(const design::Facility& facility);
    void enterSafetyFactor(const design::Facility& facility);
    void enterPipes(const design::Pipes& pipes, FacilityType type);
    void enterShaft(const design::Facility& facility);
    void enterShaftDimensions(const design::Facility& facility, data::ShaftShape shape);

    Program* program_;
    std::function<bool(std::string_view path)> wanted_;
    std::vector<std::string> unreachable_;
};

}  // namespace mero::forms
