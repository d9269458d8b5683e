// SPDX-License-Identifier: MIT
/// Two palettes for users who want other colours than their desktop's.
#pragma once

#include <QPalette>

namespace mero::qt {

[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

/// Applies the palette to the whole program. It also sets a style that uses only the palette's colours.
void usePalette(const QPalette& palette);

}  // namespace mero::qt
