// SPDX-License-Identifier: MIT
/// A drop-down list of texts with at most one selected.
/// Its click handler runs whenever an entry is selected, by position or by text, by the user or by code.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/control.h"

namespace mero::platform {

class DropList : public Control {
  public:
    using Control::Control;

    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    /// 0-based position of the selected entry, -1 for none.
    [[nodiscard]] int position() const { return position_; }
    /// Text of the selected entry, empty for none.
    [[nodiscard]] std::string text() const;

    /// Empties the list and the selection; no handler runs.
    void clear();
    void add(std::string item);
    /// Selects by position. @throws RuntimeError SubscriptOutOfRange outside the list
    void select(int position);
    /// Selects the entry with that text. A text that is not in the list selects nothing and runs no handler.
    void selectText(std::string_view text);
    /// Position of the entry with that text, -1 for none.
    [[nodiscard]] int find(std::string_view text) const;

    void userSelect(int position) {
        beforeUserActs();
        select(position);
    }
    void userGotFocus() const {
        beforeUserActs();
        if (got_focus) {
            got_focus();
        }
    }

    [[nodiscard]] ControlState state() const override;
    void showState(const ControlState& state) override;

    std::function<void()> clicked;
    std::function<void()> got_focus;

  private:
    std::vector<std::string> items_;
    int position_ = -1;
};

}  // namespace mero::platform
