// SPDX-License-Identifier: MIT
/// Appends the general text of a number to a text.
/// For files of millions of numbers: it allocates no string for each number.
#pragma once

#include <string>

namespace mero::numbers {

/// Appends general(value). The value must be finite.
void appendGeneral(std::string& text, float value);

}  // namespace mero::numbers
