// SPDX-License-Identifier: MIT
/// What the three input dialogs share: shown without being made modal, they disable the main window while
/// they are open and enable it again when they close, whatever closes them.
#pragma once

#include <string>

#include "platform/controls/form.h"
#include "platform/desk.h"

namespace mero::forms {

class Dialog : public platform::Form {
  public:
    /// @param main the main window, which is disabled while the dialog is open
    Dialog(std::string name, std::string title, platform::Form& main, platform::Desk& desk);

    /// Loads the dialog when it is not open yet, and shows it. A run-time error of loading leaves it open,
    /// too, unless it ends the program.
    void Show();
    /// Closes the dialog; the main window is enabled again.
    void Unload();

  protected:
    /// Fills the controls afresh: nothing of an earlier opening is left.
    virtual void Form_Load() = 0;

    [[nodiscard]] platform::Form& main() const { return *main_; }
    [[nodiscard]] platform::Desk& desk() const { return *desk_; }

  private:
    void open();
    void Form_QueryUnload();

    platform::Form* main_;
    platform::Desk* desk_;
    bool loaded_ = false;
};

}  // namespace mero::forms
