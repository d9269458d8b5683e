// SPDX-License-Identifier: MIT
/// A form: a window with named controls.
/// It is created hidden, loads when it is first shown, and discards its controls' states when it is closed.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"

namespace mero::platform {

class Form : public Control {
  public:
    Form(std::string name, std::string title);

    [[nodiscard]] const std::string& title() const { return title_; }
    /// All controls in the order of their creation.
    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    /// The control with that name (`txtHPV`, `cmdEdit(0)`), null when the form has none.
    [[nodiscard]] Control* find(std::string_view name) const;

    /// The user clicks the form's close box.
    void userCloses() const;

    std::function<void()> close_requested;
    /// Called with the control that a user is about to change, click, enter or leave, before its handlers
    /// run. Code that assigns to a control does not call it.
    std::function<void(const Control&)> before_user_acts;

  private:
    friend class Control;
    void add(Control& control) { controls_.push_back(&control); }

    std::string title_;
    std::vector<Control*> controls_;
};

}  // namespace mero::platform
