// SPDX-License-Identifier: MIT
/// A text box, single or multi-line. Its change handler runs at every assignment by code, and when the user
/// really changes the text.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/controls/control.h"

namespace mero::platform {

/// Keys that handlers respond to, with their character codes.
enum class Key { Enter = 13, Escape = 27 };

/// Does a box take the character when a user enters it? One line takes no control characters.
[[nodiscard]] constexpr bool isAccepted(char c, bool multi_line) {
    return static_cast<unsigned char>(c) >= ' ' || (multi_line && (c == '\n' || c == '\r' || c == '\t'));
}

/// What a box takes of a text that a user enters; line breaks become "\r\n".
[[nodiscard]] std::string acceptedText(std::string_view text, bool multi_line);

class TextBox : public Control {
  public:
    /// @param initial_text text at the start; it does not run the change handler
    TextBox(Control& container, std::string name, std::string initial_text = "")
        : Control(container, std::move(name)), text_(std::move(initial_text)) {}

    [[nodiscard]] const std::string& text() const { return text_; }
    /// Assigns the text (called by code). The change handler runs, also when the text is the same.
    void setText(std::string text);
    /// Sets the text without running the change handler (first text of the cell editor).
    void showText(std::string text);
    /// The user changes the text to `text`: the change handler runs when it differs. Line breaks become
    /// "\r\n"; a single-line box drops control characters.
    void userEdit(const std::string& text);
    /// The text that the box stores when a user enters `text`.
    [[nodiscard]] std::string accepted(const std::string& text) const {
        return acceptedText(text, multi_line_);
    }

    [[nodiscard]] bool multiLine() const { return multi_line_; }
    /// Called while the form is built.
    void setMultiLine(bool multi_line) { multi_line_ = multi_line; }

    [[nodiscard]] bool greyed() const { return greyed_; }
    /// Button-face background instead of the normal window background.
    void setGreyed(bool greyed);

    [[nodiscard]] ControlState state() const override;
    void showState(const ControlState& state) override;

    void userKey(Key key) const;
    void userGotFocus() const;
    void userLostFocus() const;

    std::function<void()> changed;
    std::function<void()> got_focus;
    std::function<void()> lost_focus;
    std::function<void(Key)> key_pressed;

  private:
    std::string text_;
    bool greyed_ = false;
    bool multi_line_ = false;
};

}  // namespace mero::platform
