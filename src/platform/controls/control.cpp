// SPDX-License-Identifier: MIT
/// Registers controls with their form, so that they are found by name, and notifies observers.
#include "platform/controls/control.h"

#include <utility>

#include "platform/controls/form.h"

namespace mero::platform {

Control::Control(Control& container, std::string name)
    : name_(std::move(name)), form_(&container.form()), container_(&container) {
    form_->add(*this);
}

Control::Control(Form& self, std::string name, bool visible)
    : name_(std::move(name)), form_(&self), container_(nullptr), visible_(visible) {}

void Control::setEnabled(bool enabled) {
    enabled_ = enabled;
    notify(Aspect::Enabled);
}

void Control::setVisible(bool visible) {
    visible_ = visible;
    notify(Aspect::Visible);
}

ControlState Control::state() const {
    ControlState state;
    state.enabled = enabled_;
    state.visible = visible_;
    return state;
}

void Control::showState(const ControlState& state) {
    take(enabled_, state.enabled, Aspect::Enabled);
    take(visible_, state.visible, Aspect::Visible);
}

void Control::beforeUserActs() const {
    if (form_->before_user_acts) {
        form_->before_user_acts(*this);
    }
}

bool Control::onScreen() const {
    if (!visible_) {
        return false;
    }
    for (const Control* holder = container_; holder != nullptr; holder = holder->container_) {
        if (!holder->showsContent()) {
            return false;
        }
    }
    return true;
}

bool Control::reachable() const {
    for (const Control* control = this; control != nullptr; control = control->container_) {
        if (!control->enabled_) {
            return false;
        }
    }
    return true;
}

void Control::notify(Aspect aspect) const {
    for (const auto& observer : observers_) {
        observer(aspect);
    }
}

}  // namespace mero::platform
