// SPDX-License-Identifier: MIT
/// What a number field holds while a person types into it, key by key.
/// A field never holds a text from which no number can come, because handlers would empty it or read a part.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/numbers/entered_number.h"

namespace mero::numbers {

/// What a field reads. None of them is ever negative.
enum class NumberField : std::uint8_t {
    Plain,
    WithExponent,  ///< small numbers such as 2e-4; half an exponent may stand while it is typed
    Whole,         ///< a 16-bit count
};

/// A field's text on both sides of the cursor.
struct FieldText {
    std::string left;
    std::string right;

    [[nodiscard]] std::string whole() const { return left + right; }
    friend bool operator==(const FieldText&, const FieldText&) = default;
};

using Typed = std::variant<FieldText, NotTaken>;

/// The field after a person typed a character between two parts of its text.
///
/// A comma is a point, also as the first key ("0."). A blank changes nothing, because it can only group
/// digits.
[[nodiscard]] Typed typed(const FieldText& field, std::string_view character, NumberField kind);

/// The field after a person pasted a text between two parts of its text: enteredNumber(), then what the kind
/// of field asks for.
[[nodiscard]] Typed pasted(const FieldText& field, std::string_view text, NumberField kind,
                           std::string_view unit);

/// The field after a person deleted what stood between two parts of its text. Where no digit is left it is
/// empty.
[[nodiscard]] Typed remaining(const FieldText& field, NumberField kind);

/// May the field hold the text while it is typed?
[[nodiscard]] bool mayStand(std::string_view text, NumberField kind);

/// Is the text empty or a number? Only then may the field be left.
[[nodiscard]] bool isFinished(std::string_view text);

/// Can a number begin with what this key types?
[[nodiscard]] bool beginsNumber(std::string_view character);

/// The text without the blanks that group its digits.
[[nodiscard]] std::string withoutBlanks(std::string_view text);

}  // namespace mero::numbers
