// SPDX-License-Identifier: MIT
/// Events of the text box.
/// A handler runs at once and may assign the text again, so no member is used after calling one.
#include "platform/controls/text_box.h"

namespace mero::platform {

AcceptedText acceptedText(std::string_view text, bool multi_line) {
    AcceptedText accepted;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool line_break = c == '\n' || c == '\r';
        if (line_break && multi_line) {
            accepted.text += "\r\n";
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
                ++i;
            }
        } else if (static_cast<unsigned char>(c) >= ' ' || (c == '\t' && multi_line)) {
            accepted.text += c;
        } else {
            accepted.dropped = true;
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
        setText(std::move(entered));
    }
}

void TextBox::setGreyed(bool greyed) {
    greyed_ = greyed;
    notify(Aspect::Colour);
}

void TextBox::userKey(Key key) const {
    if (key_pressed) {
        key_pressed(key);
    }
}

void TextBox::userGotFocus() const {
    if (got_focus) {
        got_focus();
    }
}

void TextBox::userLostFocus() const {
    if (lost_focus) {
        lost_focus();
    }
}

}  // namespace mero::platform
