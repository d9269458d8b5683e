/// The text box's events.
/// Handlers run at once and may assign the text again: nothing here is touched after a handler ran.
#include "platform/controls/text_box.h"

namespace mero::platform {

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
    if (text != text_) {
        setText(text);
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
