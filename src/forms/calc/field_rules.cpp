// SPDX-License-Identifier: MIT
/// The field rules.
/// The trap covers the conversion only; what a changed text starts is outside of it.
#include "forms/calc/field_rules.h"

#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

/// Converts and stores. False when the text is no number; a number out of range changes nothing.
template <typename T, typename Convert>
bool take(const std::string& text, T& stored, Convert convert) {
    try {
        stored = convert(text);
        return true;
    } catch (const RuntimeError& error) {
        return !error.is(ErrorNumber::TypeMismatch);
    }
}

template <typename T, typename Convert>
void store(platform::TextBox& box, T& stored, Convert convert) {
    if (box.text().empty()) {
        stored = 0;
    } else if (!take(box.text(), stored, convert)) {
        box.setText("");
    }
}

}  // namespace

void storeNumber(platform::TextBox& box, float& stored) {
    store(box, stored, numbers::strictSingle);
}

void storeNumber(platform::TextBox& box, std::int16_t& stored) {
    store(box, stored, numbers::strictInteger);
}

void storeFiltration(platform::TextBox& box, float& stored) {
    const std::string& text = box.text();
    if (text.empty()) {
        stored = 0;
    } else if (!take(text, stored, numbers::strictSingle)) {
        if (text.find('e') == std::string::npos) {
            box.setText("");
        } else {
            take(text, stored,
                 [](const std::string& typed) { return numbers::toSingle(numbers::leadingNumber(typed)); });
        }
    }
}

void formatFiltration(platform::TextBox& box, const float& stored) {
    if (numbers::leadingNumber(box.text()) > 0) {
        box.setText(numbers::scientific(stored, 1));
    }
}

}  // namespace mero::forms
