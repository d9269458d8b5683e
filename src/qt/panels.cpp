// SPDX-License-Identifier: MIT
/// Binds frames and panels to widgets.
#include "qt/panels.h"

#include "qt/mnemonics.h"
#include "qt/texts.h"

namespace mero::qt {

QGroupBox& makeFrame(WidgetKit& kit, platform::Frame& frame, QWidget& parent) {
    auto& box = *new QGroupBox(captionText(frame.text()), &parent);
    bindCommon(kit, frame, box);
    follow(frame, box, [&frame, &box](platform::Aspect aspect) {
        if (aspect == platform::Aspect::Text) {
            box.setTitle(captionText(frame.text()));
        }
    });
    return box;
}

QWidget& makePanel(WidgetKit& kit, platform::Panel& panel, QWidget& parent) {
    auto& widget = *new QWidget(&parent);
    markAlternative(widget);
    bindCommon(kit, panel, widget);
    return widget;
}

QGroupBox& makeFramedPanel(WidgetKit& kit, platform::Panel& panel, const QString& heading, QWidget& parent) {
    auto& box = *new QGroupBox(heading, &parent);
    // Without a name of its own it would get the name of the surrounding group.
    describe(box, heading);
    bindCommon(kit, panel, box);
    return box;
}

}  // namespace mero::qt
