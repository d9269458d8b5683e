// SPDX-License-Identifier: MIT
/// Shows the focus.
/// The frame lies above the widgets and follows the one with the focus, also when that one is scrolled.
#include "qt/focus_ring.h"

#include <QApplication>
#include <QFocusFrame>
#include <QProxyStyle>

#include "qt/look.h"

namespace mero::qt {
namespace {

constexpr const char* kItselfProperty = "mero_shows_focus_itself";
/// In a dark window the selection's colour alone is too dim.
constexpr double kBrightening = 0.45;
constexpr int kMargin = 3;

qreal thickness(const QPainter& painter) {
    return qMax(2.0, painter.fontMetrics().height() / 9.0);
}

class RingStyle : public QProxyStyle {
  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        if (hint == SH_FocusFrame_AboveWidget) {
            return 1;
        }
        return hint == SH_FocusFrame_Mask ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        return metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin
                   ? kMargin
                   : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

class FocusRing : public QFocusFrame {
  public:
    explicit FocusRing(QWidget& window) : QFocusFrame(&window), window_(&window) {
        auto* style = new RingStyle;
        style->setParent(this);
        setStyle(style);
        hide();
        connect(qApp, &QApplication::focusChanged, this,
                [this](QWidget* /*old*/, QWidget* now) { follow(now); });
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        paintRing(painter, rect(), palette());
    }

  private:
    void follow(QWidget* focused) {
        const bool rings = focused != nullptr && focused->window() == window_ && focused != window_ &&
                           focused->focusPolicy() != Qt::NoFocus &&
                           !focused->property(kItselfProperty).toBool();
        setWidget(rings ? focused : nullptr);
        setVisible(rings);
    }

    QWidget* window_;
};

}  // namespace

QColor ringColour(const QPalette& palette) {
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    return isDark(palette)
               ? mixed(highlight, palette.color(QPalette::Active, QPalette::WindowText), kBrightening)
               : highlight;
}

void paintRing(QPainter& painter, const QRectF& place, const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal width = thickness(painter);
    painter.setPen(QPen(ringColour(palette), width));
    painter.setBrush(Qt::NoBrush);
    const qreal half = width / 2;
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), 1.5 * width, 1.5 * width);
    painter.restore();
}

void addFocusRing(QWidget& window) {
    new FocusRing(window);
}

void showsFocusItself(QWidget& widget) {
    widget.setProperty(kItselfProperty, true);
}

}  // namespace mero::qt
