// SPDX-License-Identifier: MIT
/// Palettes of fields.
/// The tint of a result is mixed from the palette, so it suits light and dark desktops.
#include "platform/qt/look.h"

#include <QFontMetrics>
#include <QPalette>

namespace mero::qt {
namespace {

constexpr const char* kResultProperty = "mero_result";
constexpr double kResultTint = 0.12;

void setBackground(QWidget& field, const QColor& colour) {
    QPalette palette = field.palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Base, colour);
    }
    field.setPalette(palette);
}

QColor resultColour(const QWidget& field) {
    const QPalette palette = field.window()->palette();
    return mixed(palette.color(QPalette::Active, QPalette::Window),
                 palette.color(QPalette::Active, QPalette::Highlight), kResultTint);
}

}  // namespace

QColor mixed(const QColor& first, const QColor& second, double share) {
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

void showAsResult(QLineEdit& field) {
    field.setProperty(kResultProperty, true);
    field.setReadOnly(true);
    field.setFocusPolicy(Qt::ClickFocus);
    field.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = field.font();
    font.setBold(true);
    field.setFont(font);
    setBackground(field, resultColour(field));
}

void setGreyed(QWidget& field, bool greyed) {
    if (greyed) {
        setBackground(field, field.window()->palette().color(QPalette::Active, QPalette::Button));
    } else if (field.property(kResultProperty).toBool()) {
        setBackground(field, resultColour(field));
    } else {
        field.setPalette({});
    }
}

int textWidth(const QWidget& widget, int characters) {
    return widget.fontMetrics().averageCharWidth() * characters;
}

int gap(const QWidget& widget) {
    return widget.fontMetrics().height() / 2;
}

}  // namespace mero::qt
