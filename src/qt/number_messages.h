// SPDX-License-Identifier: MIT
/// What a number field tells a person about a key or a text that it did not take.
#pragma once

#include <QString>

#include "platform/numbers/entered_number.h"
#include "qt/number_line.h"

namespace mero::qt {

[[nodiscard]] QString typingMessage(numbers::NotTaken reason, const NumberEntry& entry);
[[nodiscard]] QString pastingMessage(numbers::NotTaken reason, const QString& text, const NumberEntry& entry);

/// Why one cell of a block was left out, after the name of the cell.
[[nodiscard]] QString cellMessage(numbers::NotTaken reason, const QString& text, const NumberEntry& entry);

/// The field was left with half an exponent and holds `kept` again.
[[nodiscard]] QString halfNumberMessage(const QString& half, const QString& kept);

/// A text in quotation marks, shortened to what a balloon has room for.
[[nodiscard]] QString quoted(const QString& text);

}  // namespace mero::qt
