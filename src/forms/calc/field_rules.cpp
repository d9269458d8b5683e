// SPDX-License-Identifier: MIT
/// The field rules.
/// The trap covers the conversion only; what a changed text starts is outside of it.
#include "forms/calc/field_rules.h"

#include <optional>

#include "platform/numbers/checked.h"
#include "platform/numbers/number_text.h"

namespace mero::forms {
namespace {

/// Converts and stores; the number of the trapped error when that fails.
template <typename T, typename Convert>
std::optional<int> trapConversion(const std::string& text, T& stored, Convert convert) {
    try {
        stored = convert(text);
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

bool isMismatch(std::optional<int> error) {
    return error == static_cast<int>(ErrorNumber::TypeMismatch);
}

template <typename T, typename Convert>
void store(platform::TextBox& box, T& stored, Convert convert) {
    const std::string text = box.text();
    if (text.empty()) {
        stored = 0;
        return;
    }
    if (isMismatch(trapConversion(text, stored, convert))) {
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
    const std::string text = box.text();
    if (text.empty()) {
        stored = 0;
        return;
    }
    if (!isMismatch(trapConversion(text, stored, numbers::strictSingle))) {
        return;
    }
    if (text.find('e') == std::string::npos) {
        box.setText("");
        return;
    }
    trapConversion(text, stored,
                   [](const std::string& typed) { return numbers::toSingle(numbers::leadingNumber(typed)); });
}

bool storeDimension(platform::TextBox& box, float& stored) {
    storeNumber(box, stored);
    return box.text().empty();
}

void formatFiltration(platform::TextBox& box, const float& stored) {
    if (numbers::leadingNumber(box.text()) > 0) {
        box.setText(numbers::scientific(stored, 1));
    }
}

}  // namespace mero::forms
