// SPDX-License-Identifier: MIT
/// Entered numbers in the messages of failed tests.
#pragma once

#include <ostream>

#include "platform/numbers/typed_number.h"

namespace mero::numbers {

inline void PrintTo(NotTaken reason, std::ostream* out) {
    *out << "not taken: " << static_cast<int>(reason);
}

inline void PrintTo(const FieldText& field, std::ostream* out) {
    *out << field.left << '|' << field.right;
}

}  // namespace mero::numbers
