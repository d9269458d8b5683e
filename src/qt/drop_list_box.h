// SPDX-License-Identifier: MIT
/// A drop-down list as a widget.
#pragma once

#include <QComboBox>

#include "platform/controls/drop_list.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// Choosing an entry runs the handler, also for the selected entry. The mouse wheel scrolls the page; it
/// changes the selection only while the list has the focus.
QComboBox& makeDropList(WidgetKit& kit, platform::DropList& list, QWidget& parent);

/// The same for a list whose entries do much: keys and the wheel move in the closed list without choosing;
/// Enter and leaving choose.
QComboBox& makeMovingList(WidgetKit& kit, platform::DropList& list, QWidget& parent);

}  // namespace mero::qt
