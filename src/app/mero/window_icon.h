// SPDX-License-Identifier: MIT
/// The program's icon on its windows and in the task bar.
#pragma once

#include <QIcon>

namespace mero::app {

/// The icon in all its sizes. It is compiled in, so that a program that is not installed has it too.
[[nodiscard]] QIcon programIcon();

/// Sets the icon of all windows and the name of the program's desktop entry. Call it once, after the
/// application object was created.
void wearIcon();

}  // namespace mero::app
