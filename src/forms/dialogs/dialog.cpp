/// Opening and closing of the input dialogs.
/// A dialog that is open already is shown again, not loaded a second time.
#include "forms/dialogs/dialog.h"

#include <utility>

namespace mero::forms {

Dialog::Dialog(std::string name, std::string title, platform::Form& main, platform::Desk& desk)
    : Form(std::move(name), std::move(title)), main_(&main), desk_(&desk) {
    close_requested = [this] { Unload(); };
}

void Dialog::Show() {
    const bool opens = !loaded_;
    if (opens) {
        loaded_ = true;
        Form_Load();
    }
    setVisible(true);
    if (opens) {
        desk_->formOpened(name());
    }
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
