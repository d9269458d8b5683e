// SPDX-License-Identifier: MIT
/// Acts on controls without a window.
/// Typing makes one change per character, pasting makes one change.
#include "automation/headless_user.h"

#include "automation/script_line.h"

namespace mero::automation {

void HeadlessUser::typeCharacter(platform::TextBox& box, const std::string& character) {
    program_->enter([&] { box.userEdit(box.text() + character); });
}

void HeadlessUser::eraseCharacter(platform::TextBox& box) {
    program_->enter([&] { box.userEdit(withoutLastCharacter(box.text())); });
}

void HeadlessUser::paste(platform::TextBox& box, const std::string& text) {
    program_->enter([&] { box.userEdit(text); });
}

void HeadlessUser::press(platform::TextBox& box, platform::Key key) {
    program_->enter([&] { box.userKey(key); });
}

void HeadlessUser::focus(platform::Control& control) {
    program_->enter([&] {
        if (const auto* box = dynamic_cast<platform::TextBox*>(&control)) {
            box->userGotFocus();
        } else if (const auto* list = dynamic_cast<platform::DropList*>(&control)) {
            list->userGotFocus();
        }
    });
}

void HeadlessUser::leave(platform::Control& control) {
    program_->enter([&] {
        if (const auto* box = dynamic_cast<platform::TextBox*>(&control)) {
            box->userLostFocus();
        }
    });
}

void HeadlessUser::click(platform::Button& button) {
    program_->enter([&] { button.userClick(); });
}

void HeadlessUser::click(platform::OptionButton& option) {
    program_->enter([&] { option.userClick(); });
}

void HeadlessUser::click(platform::CheckBox& box) {
    program_->enter([&] { box.userClick(); });
}

void HeadlessUser::click(platform::Label& label) {
    program_->enter([&] { label.userClick(); });
}

void HeadlessUser::select(platform::DropList& list, int position) {
    program_->enter([&] { list.userSelect(position); });
}

void HeadlessUser::spin(platform::UpDown& control, platform::UpDown::Direction direction) {
    program_->enter([&] { control.userSpin(direction); });
}

void HeadlessUser::clickCell(platform::Grid& grid, platform::GridCell cell) {
    program_->enter([&] { grid.userClick(cell); });
}

void HeadlessUser::chooseTab(platform::TabControl& tabs, int position) {
    program_->enter([&] { tabs.userSelect(position); });
}

void HeadlessUser::tick() {
    program_->enter([&] { program_->window().Timer1_Timer(); });
}

void HeadlessUser::close(platform::Form& form) {
    program_->enter([&] { form.userCloses(); });
}

}  // namespace mero::automation
