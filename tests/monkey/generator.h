// SPDX-License-Identifier: MIT
/// The monkey: makes up the next action of a user from what the program shows now.
/// Half of what it does are tasks of a user who knows the program (a rain, an area, a soil, a type with its
/// inputs and the calculation), so that it gets deep; in between it touches anything.
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
        Short,    ///< actions that end the program come, too
        Endless,  ///< none that ends it: for one long script on the real window
    };
    Generator(std::uint64_t seed, Life life);

    /// The next line, one that the program can follow now.
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
    /// Whether the program can follow the line, and whether it may now.
    [[nodiscard]] bool isUsable(const std::string& line, forms::Program& program) const;
    [[nodiscard]] std::string number();

    Random random_;
    Life life_;
    std::deque<std::string> planned_;
};

}  // namespace mero::monkey
