// SPDX-License-Identifier: MIT
/// The monkey: chooses the next random action of a user from the program's current state.
/// Half of the actions belong to whole tasks (a rain, an area, a soil, a type with its inputs and the
/// calculation), so that it reaches deep states; the others are on any control.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "forms/calc/program.h"
#include "monkey/random.h"

namespace mero::monkey {

class Generator {
  public:
    enum class Life {
        Short,    ///< with actions that end the program
        Endless,  ///< without them: for one long script on the real window
    };
    Generator(std::uint64_t seed, Life life);

    /// The next line, which the program can perform now.
    [[nodiscard]] std::string next(forms::Program& program);

  private:
    void plan(forms::Program& program);
    void planRain();
    void planArea();
    void planSoil();
    void planType(forms::Program& program);
    void planInputs(int type);
    void planReport();
    void add(const std::string& line) { planned_.push_back(line); }
    void addNumber(const std::string& field);

    [[nodiscard]] std::string anyAction(forms::Program& program);
    [[nodiscard]] std::string actionOn(platform::Control& control);
    [[nodiscard]] std::string actionOnText(const platform::TextBox& box, const std::string& name);
    [[nodiscard]] platform::Control* anyControl(forms::Program& program);
    /// True when the program can perform the line and this kind of life allows it now.
    [[nodiscard]] bool isUsable(const std::string& line, forms::Program& program) const;
    [[nodiscard]] std::string number();

    Random random_;
    Life life_;
    std::deque<std::string> planned_;
};

}  // namespace mero::monkey
