// SPDX-License-Identifier: MIT
/// What `mero-rain` prints and the rain database reads: one station table as strict lines of text.
/// A text that was cut, interleaved or made up by a crashing program is told from a whole one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/rain_database.h"

namespace mero::data {

/// How `mero-rain` ends. Any other status, or a signal, is a failed read.
enum class ReaderExit {
    Done = 0,
    WrongArguments = 2,
    CannotOpen = 3,
    TableMissing = 4,
    ReadFailed = 5,
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
/// @return empty when the table cannot be sent: no column, a name with control characters, more than 32767
/// rows,
///         a value that is not finite
[[nodiscard]] std::optional<std::string> encode(const StationTable& table);

/// The table that the text holds; empty when the text is not, to the last byte, what encode() gives.
[[nodiscard]] std::optional<StationTable> decode(std::string_view text);

}  // namespace mero::data
