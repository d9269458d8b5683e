// SPDX-License-Identifier: MIT
/// Performs a script's actions in the window: sends keys and clicks to the real widgets, with the same
/// effects as a person's.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <functional>

#include "automation/user.h"
#include "forms/calc/program.h"
#include "qt/widget_kit.h"

namespace mero::app {

class QtUser : public automation::User {
  public:
    QtUser(forms::Program& program, const qt::WidgetKit& kit) : program_(&program), kit_(&kit) {}

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
    /// The control's widget, scrolled into view. @throws std::logic_error when the control has none
    template <typename Widget>
    [[nodiscard]] Widget& widgetOf(const platform::Control& control) const;
    /// Acts on the field of a box, single or multi-line; a read-only field is writable meanwhile.
    void inField(const platform::TextBox& box, const std::function<void(QLineEdit&)>& in_line,
                 const std::function<void(QPlainTextEdit&)>& in_area) const;
    void clickWidget(const platform::Control& control) const;

    forms::Program* program_;
    const qt::WidgetKit* kit_;
};

}  // namespace mero::app
