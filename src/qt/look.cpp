// SPDX-License-Identifier: MIT
/// Sets the colours of fields.
/// The tint of a result is mixed from the palette, so it suits light and dark desktops.
#include "qt/look.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QPalette>
#include <optional>
#include <utility>

namespace mero::qt {
namespace {

constexpr const char* kResultProperty = "mero_result";
constexpr const char* kGreyedProperty = "mero_greyed";
constexpr const char* kPrimaryProperty = "mero_primary";
constexpr double kResultTint = 0.12;
/// A result is read from a distance, a title found at a glance.
constexpr double kResultSize = 1.3;
constexpr double kTitleSize = 1.1;
constexpr int kDarkBelow = 128;
constexpr QRgb kWarningOnLight = 0xffb3261e;
constexpr QRgb kWarningOnDark = 0xffff9a7a;

/// Sets one colour for all states of the widget, or the desktop's colour when none is given.
void setColour(QWidget& widget, QPalette::ColorRole role, const std::optional<QColor>& colour) {
    QPalette palette;
    if (colour) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            palette.setColor(group, role, *colour);
        }
    }
    widget.setPalette(palette);
}

std::optional<QColor> fieldColour(const QWidget& field) {
    const QPalette palette = QApplication::palette();
    if (field.property(kGreyedProperty).toBool()) {
        return palette.color(QPalette::Active, QPalette::Button);
    }
    if (field.property(kResultProperty).toBool()) {
        return mixed(palette.color(QPalette::Active, QPalette::Window),
                     palette.color(QPalette::Active, QPalette::Highlight), kResultTint);
    }
    return std::nullopt;
}

void colourField(QWidget& field) {
    setColour(field, QPalette::Base, fieldColour(field));
}

void colourWarning(QWidget& label) {
    const bool dark = isDark(QApplication::palette());
    setColour(label, QPalette::WindowText, QColor(dark ? kWarningOnDark : kWarningOnLight));
}

/// A button filled with the colour of selections has the text of selections.
void colourPrimary(QWidget& button) {
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::ButtonText,
                         QApplication::palette().color(QPalette::Active, QPalette::HighlightedText));
    }
    button.setPalette(palette);
}

/// Colours a widget now and whenever the program's palette changes.
class Colouring : public QObject {
  public:
    Colouring(QWidget& widget, void (*colour)(QWidget&))
        : QObject(&widget), widget_(&widget), colour_(colour) {
        setObjectName(QLatin1String(kName));
        widget.installEventFilter(this);
        refresh();
    }
    void refresh() {
        // Setting the colour sends a palette change event too.
        if (!std::exchange(colouring_, true)) {
            colour_(*widget_);
            colouring_ = false;
        }
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) {
            refresh();
        }
        return QObject::eventFilter(watched, event);
    }
    static constexpr const char* kName = "colouring";

  private:
    QWidget* widget_;
    void (*colour_)(QWidget&);
    bool colouring_ = false;
};

void keepColoured(QWidget& field) {
    if (field.findChild<QObject*>(QLatin1String(Colouring::kName), Qt::FindDirectChildrenOnly) == nullptr) {
        new Colouring(field, colourField);
    } else {
        colourField(field);
    }
}

}  // namespace

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Window).lightness() < kDarkBelow;
}

QColor mixed(const QColor& first, const QColor& second, double share) {
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()),
            mix(first.blue(), second.blue())};
}

void showAsResult(QLineEdit& field) {
    field.setProperty(kResultProperty, true);
    field.setReadOnly(true);
    field.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = field.font();
    font.setBold(true);
    font.setPointSizeF(QFontInfo(font).pointSizeF() * kResultSize);
    field.setFont(font);
    field.setAccessibleDescription(QStringLiteral("výsledek"));
    keepColoured(field);
}

void showAsPrimary(QWidget& button) {
    button.setProperty(kPrimaryProperty, true);
    QFont font = button.font();
    font.setBold(true);
    button.setFont(font);
    new Colouring(button, colourPrimary);
}

bool isPrimary(const QWidget& button) {
    return button.property(kPrimaryProperty).toBool();
}

QFont titleFont(QFont font) {
    font.setBold(true);
    font.setPointSizeF(QFontInfo(font).pointSizeF() * kTitleSize);
    return font;
}

void showAsWarning(QLabel& label) {
    QFont font = label.font();
    font.setBold(true);
    label.setFont(font);
    new Colouring(label, colourWarning);
}

void setGreyed(QWidget& field, bool greyed) {
    field.setProperty(kGreyedProperty, greyed);
    keepColoured(field);
}

int textWidth(const QWidget& widget, int characters) {
    return widget.fontMetrics().averageCharWidth() * characters;
}

int gap(const QWidget& widget) {
    return widget.fontMetrics().height() / 2;
}

}  // namespace mero::qt
