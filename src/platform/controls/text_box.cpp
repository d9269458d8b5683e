// SPDX-License-Identifier: MIT
/// Events of the text box.
/// A handler runs at once and may assign the text again, so no member is used after calling one.
#include "platform/controls/text_box.h"

namespace mero::platform {

std::string acceptedText(std::string_view text, bool multi_line) {
    std::string accepted;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (!isAccepted(c, multi_line)) {
            continue;
        }
        if (c == '\n' || c == '\r') {
            accepted += "\r\n";
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
                ++i;
            }
        } else {
            accepted += c;
        }
    }
    return accepted;
}

void TextBox::setText(std::string text) {
    showText(std::move(text));
    if (changed) {
        changed();
    }
}

void TextBox::showText(std::string text) {
    text_ = std::move(text);
    notify(Aspect::Text);
}

void TextBox::userEdit(const std::string& text) {
    std::string entered = accepted(text);
    if (entered != text_) {
        beforeUserActs();
        setText(std::move(entered));
    }
}

void TextBox::setGreyed(bool greyed) {
    greyed_ = greyed;
    notify(Aspect::Colour);
}

ControlState TextBox::state() const {
    ControlState state = Control::state();
    state.text = text_;
    state.greyed = greyed_;
    return state;
}

void TextBox::showState(const ControlState& state) {
    Control::showState(state);
    take(greyed_, state.greyed, Aspect::Colour);
    take(text_, state.text, Aspect::Text);
}

void TextBox::userKey(Key key) const {
    beforeUserActs();
    if (key_pressed) {
        key_pressed(key);
    }
}

void TextBox::userGotFocus() const {
    beforeUserActs();
    if (got_focus) {
        got_focus();
    }
}

void TextBox::userLostFocus() const {
    beforeUserActs();
    if (lost_focus) {
        lost_focus();
    }
}

}  // namespace mero::platform
