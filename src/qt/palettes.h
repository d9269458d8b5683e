// SPDX-License-Identifier: MIT
/// Two palettes of our own, for people who want other colours than their desktop has.
#pragma once

#include <QPalette>

namespace mero::qt {

[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

/// Shows the whole program in these colours. They come with the style that draws with nothing else.
void usePalette(const QPalette& palette);

}  // namespace mero::qt
