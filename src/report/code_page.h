// SPDX-License-Identifier: MIT
/// UTF-8 to windows-1250 and back: the report is stored in the Central European code page.
#pragma once

#include <string>
#include <string_view>

namespace mero::report {

/// Text in windows-1250. Each character that the code page lacks becomes one "?", and so does each malformed
/// sequence of bytes (the longest beginning of a character that breaks off, otherwise a single byte).
/// No text makes it fail. @throws std::system_error when the machine cannot convert to windows-1250 at all
[[nodiscard]] std::string toWindows1250(std::string_view utf8);

/// UTF-8 text of windows-1250 bytes. The five bytes without a character (0x81, 0x83, 0x88, 0x90, 0x98) become
/// U+FFFD. @throws std::system_error when the machine cannot convert from windows-1250 at all
[[nodiscard]] std::string fromWindows1250(std::string_view bytes);

}  // namespace mero::report
