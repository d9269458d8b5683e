// SPDX-License-Identifier: MIT
/// Entries and selection of the drop-down list.
/// Selecting the selected entry runs the handler again.
#include "platform/controls/drop_list.h"

#include <algorithm>

#include "platform/numbers/runtime_error.h"

namespace mero::platform {

std::string DropList::text() const {
    return position_ < 0 ? std::string() : items_[static_cast<std::size_t>(position_)];
}

ControlState DropList::state() const {
    ControlState state = Control::state();
    state.items = items_;
    state.position = position_;
    return state;
}

void DropList::showState(const ControlState& state) {
    Control::showState(state);
    // The position first: observers of the entries read it, too.
    const bool same_position = position_ == state.position;
    position_ = state.position;
    take(items_, state.items, Aspect::Items);
    if (!same_position) {
        notify(Aspect::Position);
    }
}

void DropList::clear() {
    items_.clear();
    position_ = -1;
    notify(Aspect::Items);
}

void DropList::add(std::string item) {
    items_.push_back(std::move(item));
    notify(Aspect::Items);
}

void DropList::select(int position) {
    if (position < 0 || position >= static_cast<int>(items_.size())) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    position_ = position;
    notify(Aspect::Position);
    if (clicked) {
        clicked();
    }
}

void DropList::selectText(std::string_view text) {
    const int position = find(text);
    if (position >= 0) {
        select(position);
    }
}

int DropList::find(std::string_view text) const {
    const auto found = std::find(items_.begin(), items_.end(), text);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

}  // namespace mero::platform
