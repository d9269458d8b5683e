// SPDX-License-Identifier: MIT
/// Files that are dropped on a window, wherever in it.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

namespace mero::qt {

/// Calls `dropped` with the path of a local file that is dropped on the window. Several files at once and
/// other things are not taken.
void takeDroppedFiles(QWidget& window, std::function<void(const QString&)> dropped);

/// Leaves dropped files to the window: a field would take their addresses as texts.
/// @param field the widget that drops come to: of a text area its viewport
void leaveFilesToWindow(QWidget& field);

}  // namespace mero::qt
