// SPDX-License-Identifier: MIT
/// Pieces of a project file as an error shows them.
/// Whatever bytes a file holds, its error stays one short line that a terminal shows as text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mero::project {

/// The text on one line: control characters as in JSON (`\n`, `\u0007`), what is no UTF-8 as the replacement
/// character, and "…" where it was cut.
/// @param longest most bytes of the text that are shown
[[nodiscard]] std::string shownText(std::string_view text, std::size_t longest);

}  // namespace mero::project
