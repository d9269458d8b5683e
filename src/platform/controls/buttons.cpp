// SPDX-License-Identifier: MIT
/// Runs the handlers of option buttons and check boxes.
/// The state is updated before the handler runs, because the handler may change it again.
#include "platform/controls/buttons.h"

namespace mero::platform {

OptionButton::OptionButton(Control& container, std::string name, std::string caption, Group group)
    : Captioned(container, std::move(name), std::move(caption)), group_(std::move(group)) {
    group_->push_back(this);
}

void OptionButton::assign(bool selected) {
    selected_ = selected;
    notify(Aspect::Checked);
}

void OptionButton::setSelected(bool selected) {
    if (selected) {
        for (OptionButton* member : *group_) {
            if (member != this && member->selected_) {
                member->assign(false);
            }
        }
    }
    assign(selected);
    if (selected && clicked) {
        clicked();
    }
}

ControlState OptionButton::state() const {
    ControlState state = Captioned::state();
    state.chosen = selected_;
    return state;
}

void OptionButton::showState(const ControlState& state) {
    Captioned::showState(state);
    take(selected_, state.chosen, Aspect::Checked);
}

ControlState CheckBox::state() const {
    ControlState state = Captioned::state();
    state.chosen = checked_;
    return state;
}

void CheckBox::showState(const ControlState& state) {
    Captioned::showState(state);
    take(checked_, state.chosen, Aspect::Checked);
}

void CheckBox::setChecked(bool checked) {
    if (checked == checked_) {
        return;
    }
    checked_ = checked;
    notify(Aspect::Checked);
    if (clicked) {
        clicked();
    }
}

}  // namespace mero::platform
