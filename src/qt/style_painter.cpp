// SPDX-License-Identifier: MIT
/// Draws the parts of controls, flat, with outlines that can be seen on light and dark desktops.
#include "qt/style_painter.h"

#include <QPainterPath>
#include <QStyle>

#include "qt/contrast.h"
#include "qt/look.h"

namespace mero::qt {
namespace {

constexpr double kRadius = 3;
constexpr double kCardRadius = 5;
constexpr double kHoverTint = 0.12;
constexpr double kPressedTint = 0.22;
constexpr double kFaint = 0.5;
/// Where a curve crosses pixels, a line of one pixel would be too faint.
constexpr double kMarkPen = 1.3;

/// Saves the painter's state for as long as it lives.
class Brushwork {
  public:
    Brushwork(QPainter& painter, const QPen& pen, const QBrush& brush) : painter_(&painter) {
        painter_->save();
        painter_->setRenderHint(QPainter::Antialiasing);
        painter_->setPen(pen);
        painter_->setBrush(brush);
    }
    ~Brushwork() { painter_->restore(); }
    Brushwork(const Brushwork&) = delete;
    Brushwork& operator=(const Brushwork&) = delete;
    Brushwork(Brushwork&&) = delete;
    Brushwork& operator=(Brushwork&&) = delete;

  private:
    QPainter* painter_;
};

bool has(const QStyleOption& option, QStyle::StateFlag state) {
    return (option.state & state) != 0;
}

/// A rectangle whose outline of one pixel lies within.
QRectF within(const QRect& rect) {
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

/// A control that cannot be used has a fainter outline.
QColor outlineOf(const QStyleOption& option) {
    const QColor outline = outlineColour(option.palette);
    return has(option, QStyle::State_Enabled) ? outline : mixed(cardColour(option.palette), outline, kFaint);
}

/// The fill of something that can be pressed, under the mouse and pressed.
QColor pressable(const QStyleOption& option, const QColor& fill) {
    if (!has(option, QStyle::State_Enabled)) {
        return fill;
    }
    const QColor ink = option.palette.color(QPalette::Active, QPalette::WindowText);
    if (has(option, QStyle::State_Sunken)) {
        return mixed(fill, ink, kPressedTint);
    }
    return has(option, QStyle::State_MouseOver) ? mixed(fill, ink, kHoverTint) : fill;
}

QRectF squareIn(const QRect& rect) {
    const int side = qMin(rect.width(), rect.height());
    return within(
        {rect.left() + (rect.width() - side) / 2, rect.top() + (rect.height() - side) / 2, side, side});
}

}  // namespace

void paintField(QPainter& painter, const QStyleOption& option, const QColor& fill) {
    const Brushwork work(painter, QPen(outlineOf(option), 1), fill);
    painter.drawRoundedRect(within(option.rect), kRadius, kRadius);
}

void paintFrame(QPainter& painter, const QStyleOption& option) {
    const Brushwork work(painter, QPen(outlineOf(option), 1), Qt::NoBrush);
    painter.drawRect(within(option.rect));
}

void paintButton(QPainter& painter, const QStyleOption& option, bool primary) {
    const bool filled = primary && has(option, QStyle::State_Enabled);
    const QColor fill = filled ? primaryColour(option.palette) : option.palette.color(QPalette::Button);
    const Brushwork work(painter, filled ? QPen(Qt::NoPen) : QPen(outlineOf(option), 1),
                         pressable(option, fill));
    painter.drawRoundedRect(within(option.rect), kRadius, kRadius);
}

void paintRadioMark(QPainter& painter, const QStyleOption& option) {
    const QRectF circle = squareIn(option.rect);
    const bool on = has(option, QStyle::State_On);
    const Brushwork work(painter, QPen(outlineOf(option), kMarkPen),
                         pressable(option, option.palette.color(QPalette::Base)));
    painter.drawEllipse(circle);
    if (on) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.color(QPalette::Text));
        const double inset = circle.width() * 0.27;
        painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
}

void paintTick(QPainter& painter, const QRectF& box, const QColor& colour) {
    QPainterPath tick;
    tick.moveTo(box.left() + 0.22 * box.width(), box.top() + 0.52 * box.height());
    tick.lineTo(box.left() + 0.43 * box.width(), box.top() + 0.73 * box.height());
    tick.lineTo(box.left() + 0.79 * box.width(), box.top() + 0.29 * box.height());
    painter.setPen(QPen(colour, 0.13 * box.width(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(tick);
}

void paintCheckMark(QPainter& painter, const QStyleOption& option) {
    const QRectF box = squareIn(option.rect);
    const Brushwork work(painter, QPen(outlineOf(option), kMarkPen),
                         pressable(option, option.palette.color(QPalette::Base)));
    painter.drawRoundedRect(box, kRadius, kRadius);
    if (has(option, QStyle::State_On)) {
        paintTick(painter, box, option.palette.color(QPalette::Text));
    }
}

void paintDropList(QPainter& painter, const QStyleOption& option, const QRect& arrow) {
    paintField(painter, option, pressable(option, option.palette.color(QPalette::Base)));
    const double half = option.fontMetrics.height() / 4.5;
    const QPointF middle = QRectF(arrow).center();
    QPen pen(option.palette.color(QPalette::Text), qMax(1.4, half / 3));
    pen.setCapStyle(Qt::RoundCap);
    const Brushwork work(painter, pen, Qt::NoBrush);
    painter.drawPolyline(QPolygonF{middle + QPointF(-half, -half / 2), middle + QPointF(0, half / 2),
                                   middle + QPointF(half, -half / 2)});
}

void paintHeading(QPainter& painter, const QStyleOption& option) {
    painter.fillRect(option.rect, titleStripColour(option.palette));
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                     dividerColour(option.palette));
    painter.fillRect(QRect(option.rect.right(), option.rect.top(), 1, option.rect.height()),
                     dividerColour(option.palette));
}

void paintCard(QPainter& painter, const QStyleOption& option, int strip_height) {
    const QRectF whole = within(option.rect);
    const Brushwork work(painter, Qt::NoPen, cardColour(option.palette));
    painter.drawRoundedRect(whole, kCardRadius, kCardRadius);
    if (strip_height > 0) {
        painter.save();
        painter.setClipRect(QRectF(whole.topLeft(), QSizeF(whole.width(), strip_height)));
        painter.setBrush(titleStripColour(option.palette));
        painter.drawRoundedRect(whole, kCardRadius, kCardRadius);
        painter.restore();
    }
    painter.setPen(QPen(dividerColour(option.palette), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(whole, kCardRadius, kCardRadius);
}

void paintTab(QPainter& painter, const QStyleOption& option) {
    const bool selected = has(option, QStyle::State_Selected);
    if (!selected && !has(option, QStyle::State_MouseOver)) {
        return;
    }
    QRectF shape = QRectF(option.rect).adjusted(1, 1, -1, 0);
    const Brushwork work(painter, Qt::NoPen,
                         selected ? cardColour(option.palette)
                                  : mixed(option.palette.color(QPalette::Window),
                                          option.palette.color(QPalette::WindowText), kHoverTint / 2));
    painter.drawRect(shape);
    if (selected) {
        const double bar = qMax(2.0, option.fontMetrics.height() / 6.0);
        shape.setTop(shape.bottom() - bar);
        painter.setBrush(titleColour(option.palette));
        painter.drawRect(shape);
    }
}

}  // namespace mero::qt
