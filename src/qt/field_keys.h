// SPDX-License-Identifier: MIT
/// Keys and the wheel where people expect them: arrows in a group of options, arrows and the wheel in a
/// number that counts, the wheel over a list only while the list has the focus.
#pragma once

#include <QLineEdit>
#include <QRadioButton>

#include "platform/controls/buttons.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// An arrow goes to the next option of the group and clicks it. The group is what has the same parent.
void chooseByArrows(QRadioButton& radio);

/// Arrow keys, and the wheel while the field has the focus, click the up-down control.
void spinByKeys(WidgetKit& kit, platform::UpDown& control, QLineEdit& field);

/// The wheel scrolls the page and changes nothing, until somebody has put the focus there.
void keepWheelForFocus(QWidget& widget);

}  // namespace mero::qt
