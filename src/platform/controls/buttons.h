// SPDX-License-Identifier: MIT
/// Push button, label, option button of a group, check box and up-down control.
/// The forms rely on when the click handlers run, as stated at each class.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/controls/control.h"

namespace mero::platform {

/// A control with a caption.
class Captioned : public Control {
  public:
    Captioned(Control& container, std::string name, std::string caption)
        : Control(container, std::move(name)), caption_(std::move(caption)) {}

    [[nodiscard]] const std::string& text() const { return caption_; }
    void setText(std::string caption) {
        caption_ = std::move(caption);
        notify(Aspect::Text);
    }

  private:
    std::string caption_;
};

/// Push button.
class Button : public Captioned {
  public:
    using Captioned::Captioned;
    void userClick() const {
        beforeUserActs();
        if (clicked) {
            clicked();
        }
    }
    std::function<void()> clicked;
};

/// Label; one with a handler is a link.
class Label : public Captioned {
  public:
    using Captioned::Captioned;
    void userClick() const {
        beforeUserActs();
        if (clicked) {
            clicked();
        }
    }
    std::function<void()> clicked;
};

/// Option button. Its handler runs whenever its value is set to selected, by the user or by code, also when
/// it was selected already. Members that were built with the same group exclude each other silently.
class OptionButton : public Captioned {
  public:
    using Group = std::shared_ptr<std::vector<OptionButton*>>;

    OptionButton(Control& container, std::string name, std::string caption, Group group);

    [[nodiscard]] bool selected() const { return selected_; }
    void setSelected(bool selected);
    void userClick() {
        beforeUserActs();
        setSelected(true);
    }

    [[nodiscard]] ControlState state() const override;
    void showState(const ControlState& state) override;

    std::function<void()> clicked;

  private:
    void assign(bool selected);

    Group group_;
    bool selected_ = false;
};

/// Check box. Its handler runs when its value changes, by the user or by code.
class CheckBox : public Captioned {
  public:
    using Captioned::Captioned;

    [[nodiscard]] bool checked() const { return checked_; }
    void setChecked(bool checked);
    void userClick() {
        beforeUserActs();
        setChecked(!checked_);
    }

    [[nodiscard]] ControlState state() const override;
    void showState(const ControlState& state) override;

    std::function<void()> clicked;

  private:
    bool checked_ = false;
};

/// Up-down control: two arrows, one step each.
class UpDown : public Control {
  public:
    using Control::Control;
    enum class Direction { Up, Down };
    void userSpin(Direction direction) const {
        beforeUserActs();
        if (spun) {
            spun(direction);
        }
    }
    std::function<void(Direction)> spun;
};

}  // namespace mero::platform
