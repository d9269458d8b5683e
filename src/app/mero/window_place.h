// SPDX-License-Identifier: MIT
/// Puts the window where it was when the program ended, if that is on a screen.
#pragma once

#include <QWidget>

#include "app/keeping/preferences.h"

namespace mero::app {

[[nodiscard]] WindowPlace placeOf(const QWidget& window);

/// Places a window that is not shown yet.
/// @return false when the place is on no screen of today: the window is left as it is
bool takePlace(QWidget& window, const WindowPlace& place);

}  // namespace mero::app
