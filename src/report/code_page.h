// SPDX-License-Identifier: MIT
/// Converts between UTF-8 and windows-1250, the Central European code page in which the report is stored.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

/// Converts to windows-1250. Each character that the code page lacks becomes one "?", and so does each
/// malformed sequence of bytes (the longest incomplete beginning of a character, otherwise a single byte).
/// @throws std::system_error when the machine cannot convert to windows-1250; never because of the text
[[nodiscard]] std::string toWindows1250(std::string_view utf8);

/// Converts windows-1250 to UTF-8. The five bytes without a character (0x81, 0x83, 0x88, 0x90, 0x98) become
/// U+FFFD. @throws std::system_error when the machine cannot convert from windows-1250
[[nodiscard]] std::string fromWindows1250(std::string_view bytes);

}  // namespace mero::report
