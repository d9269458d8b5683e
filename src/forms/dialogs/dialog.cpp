// SPDX-License-Identifier: MIT
/// Opening and closing of the input dialogs.
/// A dialog that is open already is shown again, not loaded a second time.
#include "forms/dialogs/dialog.h"

#include <utility>

#include "platform/numbers/runtime_error.h"

namespace mero::forms {

Dialog::Dialog(std::string name, std::string title, platform::Form& main, platform::Desk& desk)
    : Form(std::move(name), std::move(title)), main_(&main), desk_(&desk) {
    close_requested = [this] { Unload(); };
}

void Dialog::Show() {
    if (loaded_) {
        setVisible(true);
        return;
    }
    loaded_ = true;
    try {
        Form_Load();
    } catch (const RuntimeError& error) {
        // The main window is disabled by now, so the user needs the dialog: to correct what cannot be summed,
        // and to close it.
        if (!error.endsProgram()) {
            open();
        }
        throw;
    }
    open();
}

void Dialog::open() {
    setVisible(true);
    desk_->formOpened(name());
}

void Dialog::Unload() {
    if (!loaded_) {
        return;
    }
    Form_QueryUnload();
    loaded_ = false;
    setVisible(false);
    desk_->formClosed(name());
}

void Dialog::Form_QueryUnload() {
    main_->setEnabled(true);
}

}  // namespace mero::forms
