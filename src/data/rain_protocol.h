// SPDX-License-Identifier: MIT
/// The output of `mero-rain`, read by the rain database: one station table as strict lines of text.
/// A text that is cut, interleaved or printed by a crashing program is distinguished from a complete one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/rain_database.h"

namespace mero::data {

/// Exit statuses of `mero-rain`. Any other status, or a signal, is a failed read.
enum class ReaderExit {
    Done = 0,
    WrongArguments = 2,
    CannotOpen = 3,
    TableMissing = 4,
    ReadFailed = 5,
    NoNumbers = 6,  ///< the table has intensity fields, but none of a type that holds numbers
};

/// The table's text, with "\n" at each line's end:
///
///     mero-rain 1
///     demonstration 1
///     columns 8
///     column doba           one line per column
///     rows 9
///     row<TAB>5<TAB>115.5   one line per row; a value is the shortest text of its double, empty for none
///     end 9
///
/// @return empty when the table cannot be encoded: no column, a name with control characters, more than 32767
///         rows, a value that is not finite
[[nodiscard]] std::optional<std::string> encode(const StationTable& table);

/// Parses a table; empty when the text differs in any byte from the result of encode().
[[nodiscard]] std::optional<StationTable> decode(std::string_view text);

}  // namespace mero::data
