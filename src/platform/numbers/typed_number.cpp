// SPDX-License-Identifier: MIT
/// Decides on each key by the text that it would make.
#include "platform/numbers/typed_number.h"

#include <algorithm>
#include <optional>

#include "platform/numbers/number_text.h"
#include "platform/numbers/ordinary_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::numbers {
namespace {

constexpr std::string_view kDigits = "0123456789";

bool hasDigit(std::string_view text) {
    return text.find_first_of(kDigits) != std::string_view::npos;
}

bool isAllDigits(std::string_view text) {
    return text.find_first_not_of(kDigits) == std::string_view::npos;
}

/// Why a number cannot be stored as this kind of field stores it.
std::optional<NotTaken> outOfRange(std::string_view number, NumberField kind) {
    try {
        if (kind == NumberField::Whole) {
            (void)strictInteger(number);
            return std::nullopt;
        }
        const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
        const bool zero = mantissa.find_first_of("123456789") == std::string_view::npos;
        return strictSingle(number) != 0 || zero ? std::nullopt : std::optional(NotTaken::TooSmall);
    } catch (const RuntimeError& error) {
        return error.number() == static_cast<int>(ErrorNumber::Overflow) ? NotTaken::TooLarge
                                                                         : NotTaken::NoNumber;
    }
}

/// "2e", "2e-", and "e-4" before its first digit is typed anew.
bool isBegunExponent(std::string_view text) {
    const std::size_t e = text.find('e');
    if (e == std::string_view::npos) {
        return false;
    }
    const std::string_view mantissa = text.substr(0, e);
    std::string_view exponent = text.substr(e + 1);
    if (exponent.starts_with('-') || exponent.starts_with('+')) {
        exponent.remove_prefix(1);
    }
    const bool one_point = std::count(mantissa.begin(), mantissa.end(), '.') <= 1;
    return one_point && mantissa.find_first_not_of("0123456789.") == std::string_view::npos &&
           isAllDigits(exponent);
}

/// Why the field cannot hold the text, if it cannot.
std::optional<NotTaken> refused(std::string_view text, NumberField kind) {
    if (text.empty()) {
        return std::nullopt;
    }
    if (text.starts_with('-')) {
        return NotTaken::Negative;
    }
    if (kind == NumberField::Whole && text.find('.') != std::string_view::npos) {
        return NotTaken::NotWhole;
    }
    const auto reason = outOfRange(text, kind);
    const bool begun =
        reason == NotTaken::NoNumber && kind == NumberField::WithExponent && isBegunExponent(text);
    return begun ? std::nullopt : reason;
}

Typed checked(const FieldText& field, NumberField kind) {
    const FieldText plain{withoutBlanks(field.left), withoutBlanks(field.right)};
    const auto reason = refused(plain.whole(), kind);
    return reason ? Typed(*reason) : plain;
}

/// The digits of a count that a spreadsheet shows with decimals: "12.00".
std::string withoutZeroDecimals(const std::string& number) {
    const std::size_t point = number.find('.');
    const bool zeros =
        point != std::string::npos && number.find_first_not_of('0', point + 1) == std::string::npos;
    return zeros ? number.substr(0, point) : number;
}

}  // namespace

std::string withoutBlanks(std::string_view text) {
    std::string plain(text);
    plain.erase(std::remove(plain.begin(), plain.end(), ' '), plain.end());
    return plain;
}

Typed typed(const FieldText& field, std::string_view character, NumberField kind) {
    std::string key = ordinaryText(character);
    if (key == " ") {
        return field;
    }
    if (key == ",") {
        key = ".";
    } else if (key == "E") {
        key = "e";
    }
    if (key == ".") {
        if (field.whole().find('.') != std::string::npos) {
            return kind == NumberField::Whole ? NotTaken::NotWhole : NotTaken::TwoSeparators;
        }
        if (field.left.empty()) {
            key = "0.";
        }
    } else if (key == "-" && field.left.empty()) {
        return NotTaken::Negative;
    }
    return checked({field.left + key, field.right}, kind);
}

Typed pasted(const FieldText& field, std::string_view text, NumberField kind, std::string_view unit) {
    const Entered entered = enteredNumber(text, unit);
    const auto* const number = std::get_if<std::string>(&entered);
    if (number == nullptr) {
        return std::get<NotTaken>(entered);
    }
    if (number->starts_with('-')) {
        return NotTaken::Negative;
    }
    switch (kind) {
        case NumberField::Plain:
            return checked({field.left + withoutExponent(*number), field.right}, kind);
        case NumberField::Whole:
            return checked({field.left + withoutZeroDecimals(withoutExponent(*number)), field.right}, kind);
        case NumberField::WithExponent:
            break;
    }
    return checked({field.left + *number, field.right}, kind);
}

Typed remaining(const FieldText& field, NumberField kind) {
    if (!hasDigit(field.whole())) {
        return FieldText{};
    }
    Typed result = checked(field, kind);
    if (std::holds_alternative<NotTaken>(result) && kind == NumberField::WithExponent) {
        // Half an exponent stands only with a small e; the program writes a capital one.
        FieldText small = field;
        std::replace(small.left.begin(), small.left.end(), 'E', 'e');
        std::replace(small.right.begin(), small.right.end(), 'E', 'e');
        result = checked(small, kind);
    }
    return result;
}

bool mayStand(std::string_view text, NumberField kind) {
    return !refused(text, kind);
}

bool isFinished(std::string_view text) {
    return text.empty() || outOfRange(text, NumberField::Plain) != NotTaken::NoNumber;
}

bool beginsNumber(std::string_view character) {
    const Typed first = typed({}, character, NumberField::Plain);
    const auto* const taken = std::get_if<FieldText>(&first);
    return taken != nullptr && !taken->whole().empty();
}

}  // namespace mero::numbers
