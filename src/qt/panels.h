// SPDX-License-Identifier: MIT
/// Frames and panels as widgets.
#pragma once

#include <QGroupBox>

#include "platform/controls/containers.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// A frame with its caption.
QGroupBox& makeFrame(WidgetKit& kit, platform::Frame& frame, QWidget& parent);

/// A panel that code shows in place of others. The layout decides its position, not the one set by code.
QWidget& makePanel(WidgetKit& kit, platform::Panel& panel, QWidget& parent);

/// The same with a frame and a heading.
QGroupBox& makeFramedPanel(WidgetKit& kit, platform::Panel& panel, const QString& heading, QWidget& parent);

}  // namespace mero::qt
