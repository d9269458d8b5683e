// SPDX-License-Identifier: MIT
/// The general text of a number, written to the end of a text that is already there.
/// For files of millions of numbers: no text of its own is made for each.
#pragma once

#include <string>

namespace mero::numbers {

/// Appends general(value). The value must be finite.
void appendGeneral(std::string& text, float value);

}  // namespace mero::numbers
