// SPDX-License-Identifier: MIT
/// Performs the user's actions without a window, by calling the controls directly.
/// Each action enters the program as one event, like a widget's signal.
#pragma once

#include "automation/user.h"
#include "forms/calc/program.h"

namespace mero::automation {

class HeadlessUser : public User {
  public:
    explicit HeadlessUser(forms::Program& program) : program_(&program) {}

    void typeCharacter(platform::TextBox& box, const std::string& character) override;
    void eraseCharacter(platform::TextBox& box) override;
    void paste(platform::TextBox& box, const std::string& text) override;
    void press(platform::TextBox& box, platform::Key key) override;
    void focus(platform::Control& control) override;
    void leave(platform::Control& control) override;
    void click(platform::Button& button) override;
    void click(platform::OptionButton& option) override;
    void click(platform::CheckBox& box) override;
    void click(platform::Label& label) override;
    void select(platform::DropList& list, int position) override;
    void spin(platform::UpDown& control, platform::UpDown::Direction direction) override;
    void clickCell(platform::Grid& grid, platform::GridCell cell) override;
    void chooseTab(platform::TabControl& tabs, int position) override;
    void tick() override;
    void close(platform::Form& form) override;

  private:
    forms::Program* program_;
};

}  // namespace mero::automation
