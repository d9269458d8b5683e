// SPDX-License-Identifier: MIT
/// Offers the designer of the project saved last, where none is entered. It becomes a value only when it is
/// taken.
#pragma once

#include <QString>

#include "platform/controls/text_box.h"
#include "qt/widget_kit.h"

namespace mero::app {

/// The name stands greyed in the empty field; its first letters complete it.
/// @param designer empty for no offer
void hintDesigner(qt::WidgetKit& kit, platform::TextBox& box, const QString& designer);

}  // namespace mero::app
