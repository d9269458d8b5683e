// SPDX-License-Identifier: MIT
/// Tab control and its pages.
/// Pages are controls too, so that a control on a page knows whether it is on screen.
#include "platform/controls/containers.h"

#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::platform {

ControlState Panel::state() const {
    ControlState state = Captioned::state();
    state.left = left_;
    state.top = top_;
    return state;
}

void Panel::showState(const ControlState& state) {
    if (left_ != state.left || top_ != state.top) {
        moveTo(state.left, state.top);
    }
    Captioned::showState(state);
}

TabPage::TabPage(TabControl& tabs, int position)
    : Control(tabs, tabs.name() + ".page(" + numbers::general(position) + ")"),
      tabs_(&tabs),
      position_(position) {}

bool TabPage::showsContent() const {
    return visible() && tabs_->position() == position_;
}

TabControl::TabControl(Control& container, std::string name, std::vector<std::string> captions)
    : Control(container, std::move(name)), captions_(std::move(captions)) {
    for (int position = 0; position < static_cast<int>(captions_.size()); ++position) {
        pages_.push_back(std::make_unique<TabPage>(*this, position));
    }
}

void TabControl::setPosition(int position) {
    if (position < 0 || position >= static_cast<int>(captions_.size())) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    if (position == position_) {
        return;
    }
    const int previous = position_;
    position_ = position;
    notify(Aspect::Position);
    if (changed) {
        changed(previous);
    }
}

}  // namespace mero::platform
