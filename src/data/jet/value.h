// SPDX-License-Identifier: MIT
/// Converts the stored bytes of a value to a number, by the type of its column.
#pragma once

#include <optional>

#include "data/jet/table_definition.h"

namespace mero::data::jet {

/// The number; of a date the days since 1899-12-30; a text is one when the program's fields accept it as one.
/// Empty when the bytes hold none: not finite, a text that is no number, a type without numbers (memo, ...).
[[nodiscard]] std::optional<double> numberOf(const Column& column, Bytes value);

/// Can the type hold numbers? A date is none.
[[nodiscard]] bool holdsNumbers(ColumnType type);

}  // namespace mero::data::jet
