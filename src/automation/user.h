// SPDX-License-Identifier: MIT
/// Interface for the user's actions: how an action of a script reaches a control.
/// Without a window the control is called directly; with one, events are sent to the real widget.
#pragma once

#include <string>

#include "platform/controls/buttons.h"
#include "platform/controls/containers.h"
#include "platform/controls/drop_list.h"
#include "platform/controls/form.h"
#include "platform/controls/grid.h"
#include "platform/controls/text_box.h"

namespace mero::automation {

class User {
  public:
    User() = default;
    virtual ~User() = default;
    User(const User&) = delete;
    User& operator=(const User&) = delete;
    User(User&&) = delete;
    User& operator=(User&&) = delete;

    /// Presses one key that appends `character` (one UTF-8 character, or "\r\n" for the line break of a
    /// multi-line box) to the box's text.
    virtual void typeCharacter(platform::TextBox& box, const std::string& character) = 0;
    /// Presses Backspace at the end of the box's text.
    virtual void eraseCharacter(platform::TextBox& box) = 0;
    /// Selects all and pastes; line breaks are "\r\n".
    virtual void paste(platform::TextBox& box, const std::string& text) = 0;
    virtual void press(platform::TextBox& box, platform::Key key) = 0;
    virtual void focus(platform::Control& control) = 0;
    virtual void leave(platform::Control& control) = 0;

    virtual void click(platform::Button& button) = 0;
    virtual void click(platform::OptionButton& option) = 0;
    virtual void click(platform::CheckBox& box) = 0;
    virtual void click(platform::Label& label) = 0;
    virtual void select(platform::DropList& list, int position) = 0;
    virtual void spin(platform::UpDown& control, platform::UpDown::Direction direction) = 0;
    virtual void clickCell(platform::Grid& grid, platform::GridCell cell) = 0;
    virtual void chooseTab(platform::TabControl& tabs, int position) = 0;

    /// The clock timer fires once.
    virtual void tick() = 0;
    /// Clicks the form's close box.
    virtual void close(platform::Form& form) = 0;
};

}  // namespace mero::automation
