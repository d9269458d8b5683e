// SPDX-License-Identifier: MIT
/// A text box: single or multi-line, its change handler runs at every assignment by code,
/// and by the user whenever the text really changes.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/controls/control.h"

namespace mero::platform {

/// Keys that handlers know, with their character codes.
enum class Key { Enter = 13, Escape = 27 };

/// What of a text a box takes when a user enters it.
struct AcceptedText {
    std::string text;      ///< line breaks are "\r\n"; a single-line box takes no control characters
    bool dropped = false;  ///< some characters were not taken
};

[[nodiscard]] AcceptedText acceptedText(std::string_view text, bool multi_line);

class TextBox : public Control {
  public:
    /// @param initial_text text that the field opens with; it does not run the change handler
    TextBox(Control& container, std::string name, std::string initial_text = "")
        : Control(container, std::move(name)), text_(std::move(initial_text)) {}

    [[nodiscard]] const std::string& text() const { return text_; }
    /// Code assigns the text: the change handler runs, also when the text is the same.
    void setText(std::string text);
    /// Shows a text without running the change handler (the opening text of the cell editor).
    void showText(std::string text);
    /// The user makes the text `text`: the change handler runs when it differs. Line breaks become "\r\n";
    /// a single-line box takes no control characters.
    void userEdit(const std::string& text);
    [[nodiscard]] std::string accepted(const std::string& text) const {
        return acceptedText(text, multi_line_).text;
    }

    [[nodiscard]] bool multiLine() const { return multi_line_; }
    /// Set while the form is built.
    void setMultiLine(bool multi_line) { multi_line_ = multi_line; }

    [[nodiscard]] bool greyed() const { return greyed_; }
    /// Button-face background instead of the normal window background.
    void setGreyed(bool greyed);

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
