// SPDX-License-Identifier: MIT
/// Descriptions of the run-time errors.
/// One Czech sentence each, without a full stop, to fit into longer messages.
#include "platform/numbers/runtime_error.h"

namespace mero {

const char* describe(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::InvalidCall:
            return "Neplatná hodnota argumentu";
        case ErrorNumber::Overflow:
            return "Přetečení: hodnota je mimo rozsah";
        case ErrorNumber::SubscriptOutOfRange:
            return "Index je mimo rozsah";
        case ErrorNumber::DivisionByZero:
            return "Dělení nulou";
        case ErrorNumber::TypeMismatch:
            return "Text není číslo";
        case ErrorNumber::FileNotFound:
            return "Soubor nebyl nalezen";
    }
    return "Neznámá chyba";
}

RuntimeError::RuntimeError(ErrorNumber error)
    : std::runtime_error(describe(error)), number_(static_cast<int>(error)), effect_(Effect::AbandonsEvent) {}

RuntimeError::RuntimeError(int error_number, const std::string& description, Effect effect)
    : std::runtime_error(description), number_(error_number), effect_(effect) {}

}  // namespace mero
