// SPDX-License-Identifier: MIT
/// Text between tags, so that it is read as text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "report/markup_rules.h"

namespace mero::report {

/// Appends a text. A "<" becomes an entity. For the view, so does the "&" of entities of letters that no
/// report needs, because each script has fonts of its own, which take long to load; control characters become
/// blanks.
void addHarmlessText(std::string& html, std::string_view text, PageUse use);

/// At most `most` bytes of a text in UTF-8, without a part of a letter at the end.
[[nodiscard]] std::string_view wholeLetters(std::string_view text, std::size_t most);

}  // namespace mero::report
