// SPDX-License-Identifier: MIT
/// Plausible and odd texts for fields.
#pragma once

#include <string>

#include "monkey/random.h"

namespace mero::monkey {

/// A number as an engineer enters it.
[[nodiscard]] std::string plausibleNumber(Random& random);
/// Numbers at limits, texts that are almost numbers, texts that are not numbers.
[[nodiscard]] std::string nastyNumber(Random& random);
/// Words, mark-up, paths, foreign scripts, control characters, long texts.
[[nodiscard]] std::string freeText(Random& random);
/// A text as a word of a script line: in double quotes, with escapes.
[[nodiscard]] std::string quoted(const std::string& text);

}  // namespace mero::monkey
