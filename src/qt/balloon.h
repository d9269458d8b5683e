// SPDX-License-Identifier: MIT
/// A short text beside a field, for what need not be confirmed.
/// It takes no focus and no click, and goes away by itself.
#pragma once

#include <QString>
#include <QWidget>

namespace mero::qt {

/// Shows the text beside the widget, or beside the part `spot` of it, in place of an earlier one. It goes
/// with the next click or with the next key, but stays long enough to be seen by somebody who types fast. A
/// screen reader says it.
void showBalloon(QWidget& at, const QString& text, const QRect& spot = {});

/// Takes the text away, if one is shown.
void hideBalloon();

/// The text that is shown, empty without one.
[[nodiscard]] QString balloonText();

}  // namespace mero::qt
