// SPDX-License-Identifier: MIT
/// The program's icon on its windows and in the task bar.
#pragma once

#include <QIcon>

namespace mero::app {

/// The icon in all its sizes; it is part of the program, so a copy that is not installed has it too.
[[nodiscard]] QIcon programIcon();

/// Gives every window the icon and tells the desktop which of its entries the program belongs to. To be
/// called once, after the application object was made.
void wearIcon();

}  // namespace mero::app
