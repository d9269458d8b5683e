// SPDX-License-Identifier: MIT
/// Keys and the wheel: arrows choose in a group of options, arrows and the wheel change a number with arrow
/// buttons, the wheel changes a list only while the list has the focus.
#pragma once

#include <QLineEdit>
#include <QRadioButton>

#include "platform/controls/buttons.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// An arrow key moves to the next option of the group and clicks it. A group is the options of one parent.
void chooseByArrows(QRadioButton& radio);

/// Arrow keys, and the wheel while the field has the focus, click the up-down control.
void spinByKeys(WidgetKit& kit, platform::UpDown& control, QLineEdit& field);

/// While the widget has no focus, the wheel scrolls the page and leaves the widget unchanged.
void keepWheelForFocus(QWidget& widget);

}  // namespace mero::qt
