// SPDX-License-Identifier: MIT
/// Writes texts of any bytes as JSON strings.
#pragma once

#include <string>
#include <string_view>

namespace mero::platform {

/// The text as a JSON string, with its quotes. Characters beyond ASCII stay as they are; each longest piece
/// that begins like a UTF-8 character and is none becomes one replacement character (U+FFFD).
[[nodiscard]] std::string jsonText(std::string_view text);

}  // namespace mero::platform
