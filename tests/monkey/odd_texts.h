// SPDX-License-Identifier: MIT
/// The texts that a user, or a cat on the keyboard, may put into a field.
#pragma once

#include <string>

#include "monkey/random.h"

namespace mero::monkey {

/// A number as an engineer enters it.
[[nodiscard]] std::string plausibleNumber(Random& random);
/// Numbers at the edges, texts that are almost numbers, texts that are none.
[[nodiscard]] std::string nastyNumber(Random& random);
/// Words, mark-up, paths, foreign scripts, control characters, long texts.
[[nodiscard]] std::string freeText(Random& random);
/// Any of them, as a word of a script line: in double quotes, with its escapes.
[[nodiscard]] std::string quoted(const std::string& text);

}  // namespace mero::monkey
