// SPDX-License-Identifier: MIT
/// Two palettes for users who want other colours than their desktop's.
#pragma once

#include <QPalette>

namespace mero::qt {

[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

/// On a desktop that sets no colours the program has its own instead of the style's greys.
void useOwnColoursWhereDesktopHasNone();

}  // namespace mero::qt
