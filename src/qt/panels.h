// SPDX-License-Identifier: MIT
/// Frames and panels as widgets: boxes around what belongs together.
#pragma once

#include <QGroupBox>

#include "platform/controls/containers.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// A frame with its caption.
QGroupBox& makeFrame(WidgetKit& kit, platform::Frame& frame, QWidget& parent);

/// A panel that code shows in place of others. Its place is the layout's; code's only says what stands above
/// what.
QWidget& makePanel(WidgetKit& kit, platform::Panel& panel, QWidget& parent);

/// The same with a frame and a heading.
QGroupBox& makeFramedPanel(WidgetKit& kit, platform::Panel& panel, const QString& heading, QWidget& parent);

}  // namespace mero::qt
