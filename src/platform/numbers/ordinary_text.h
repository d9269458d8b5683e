// SPDX-License-Identifier: MIT
/// Texts from other programs with plain characters in place of typographic ones.
#pragma once

#include <string>
#include <string_view>

namespace mero::numbers {

/// The UTF-8 text in the characters of a keyboard: every kind of blank is a blank, every line end "\n", every
/// minus and dash "-", every sign of multiplication "*", and superscripts stand behind "^" ("m²" gives
/// "m^2"). Characters without a width are dropped; others stay as they are.
[[nodiscard]] std::string ordinaryText(std::string_view text);

}  // namespace mero::numbers
