// SPDX-License-Identifier: MIT
/// Paints drawings with QPainter.
/// Patterns consist of painted lines and dots instead of brush pixmaps, so they are sharp at any scale.
#include "qt/picture_painter.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <vector>

#include "picture/line_style.h"
#include "qt/look.h"
#include "qt/texts.h"

namespace mero::qt {
namespace {

using picture::Emphasis;
using picture::Material;
using picture::Stroke;

QPointF pointOf(const picture::Point& point) {
    return {point.x, point.y};
}

QRectF rectOf(const picture::Box& box) {
    return {box.left, box.top, box.width(), box.height()};
}

QPolygonF polygonOf(const std::vector<picture::Point>& points) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(points.size()));
    for (const picture::Point& point : points) {
        polygon.append(pointOf(point));
    }
    return polygon;
}

/// Base and text mixed: a neutral colour that suits light and dark.
QColor neutral(const QPalette& palette, double share) {
    return mixed(palette.color(QPalette::Active, QPalette::Base),
                 palette.color(QPalette::Active, QPalette::Text), share);
}

QColor accent(const QPalette& palette, double share) {
    return mixed(palette.color(QPalette::Active, QPalette::Base),
                 palette.color(QPalette::Active, QPalette::Highlight), share);
}

/// Diagonal lines over the whole box.
void hatch(QPainter& painter, const QRectF& box, double distance) {
    const int count = static_cast<int>((box.width() + box.height()) / distance);
    for (int i = 0; i <= count; ++i) {
        const double x = box.left() - box.height() + i * distance;
        painter.drawLine(QPointF(x, box.bottom()), QPointF(x + box.height(), box.top()));
    }
}

/// Rings or dots in rows, every other row shifted by half a step.
void scatter(QPainter& painter, const QRectF& box, double distance, double radius) {
    const double row_height = distance * 0.8;
    const int rows = static_cast<int>(box.height() / row_height);
    const int columns = static_cast<int>(box.width() / distance);
    for (int row = 0; row <= rows; ++row) {
        const double first = box.left() + (row % 2 == 0 ? distance / 2 : distance);
        for (int column = 0; column <= columns; ++column) {
            painter.drawEllipse(
                QPointF(first + column * distance, box.top() + distance / 2 + row * row_height), radius,
                radius);
        }
    }
}

void paintPattern(QPainter& painter, const QPolygonF& polygon, Material material, const QPalette& palette,
                  double line) {
    const bool patterned = material == Material::Soil || material == Material::Gravel ||
                           material == Material::Filter || material == Material::Sand;
    if (!patterned) {
        return;
    }
    painter.save();
    QPainterPath path;
    path.addPolygon(polygon);
    painter.setClipPath(path, Qt::IntersectClip);
    const QRectF box = polygon.boundingRect();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(neutral(palette, material == Material::Soil ? 0.2 : 0.45), line / 18));
    switch (material) {
        case Material::Soil:
            hatch(painter, box, line * 0.7);
            break;
        case Material::Gravel:
            scatter(painter, box, line * 0.6, line * 0.2);
            break;
        case Material::Filter:
            scatter(painter, box, line * 0.4, line * 0.09);
            break;
        default:
            painter.setBrush(neutral(palette, 0.45));
            painter.setPen(Qt::NoPen);
            scatter(painter, box, line * 0.28, line * 0.05);
            break;
    }
    painter.restore();
}

QPen penOf(const QPalette& palette, const picture::PlacedLine& placed, double line) {
    const QColor colour = placed.stroke == Stroke::Series ? seriesColour(palette, placed.series)
                                                          : inkColour(palette, placed.stroke);
    QPen pen(colour, picture::strokeWidth(placed.stroke, line));
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    const std::vector<double> dashes = picture::dashesOf(placed);
    if (!dashes.empty()) {
        pen.setDashPattern({dashes.begin(), dashes.end()});
    }
    return pen;
}

void paintMark(QPainter& painter, const picture::PlacedMark& mark, const QPalette& palette, double line) {
    const QColor colour = seriesColour(palette, mark.series);
    painter.setPen(QPen(colour, line / 16));
    painter.setBrush(picture::isFilled(mark) ? colour : fillColour(palette, Material::Air));
    const std::vector<picture::Point> corners = picture::cornersOf(mark);
    if (corners.empty()) {
        painter.drawEllipse(pointOf(mark.centre), mark.radius, mark.radius);
    } else {
        painter.drawPolygon(polygonOf(corners));
    }
}

/// The text fills its box: it was measured in this font, so its alignment does not matter.
void paintText(QPainter& painter, const picture::PlacedText& text, const QPalette& palette,
               const QFont& font) {
    QFont sized = pictureFont(font, text.emphasis);
    if (text.size != 1.0) {
        sized.setPointSizeF(sized.pointSizeF() * text.size);
    }
    painter.setFont(sized);
    painter.setPen(textColour(palette, text.emphasis));
    const QRectF box = rectOf(text.box);
    // Leaders and grid lines stop at a text.
    painter.fillRect(box, fillColour(palette, Material::Air));
    if (!text.upright) {
        painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, shown(text.text));
        return;
    }
    painter.save();
    painter.translate(box.center());
    painter.rotate(-90);
    painter.drawText(QRectF(-box.height() / 2, -box.width() / 2, box.height(), box.width()),
                     Qt::AlignCenter | Qt::TextDontClip, shown(text.text));
    painter.restore();
}

}  // namespace

QFont pictureFont(const QFont& font, Emphasis emphasis) {
    QFont result = font;
    result.setBold(emphasis == Emphasis::Strong);
    return result;
}

picture::TextSizes textSizes(const QFont& font) {
    const QFontMetricsF plain(pictureFont(font, Emphasis::Plain));
    const QFontMetricsF bold(pictureFont(font, Emphasis::Strong));
    return {.line_height = std::ceil(std::max(plain.height(), bold.height())),
            .measure = [plain, bold](std::string_view text, Emphasis emphasis) {
                const QString shown_text =
                    QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
                return std::ceil((emphasis == Emphasis::Strong ? bold : plain).horizontalAdvance(shown_text));
            }};
}

QColor fillColour(const QPalette& palette, Material material) {
    switch (material) {
        case Material::Soil:
            return neutral(palette, 0.09);
        case Material::Water:
            return accent(palette, 0.4);
        case Material::Gravel:
            return accent(palette, 0.18);
        case Material::Filter:
        case Material::Sand:
            return neutral(palette, 0.04);
        case Material::Concrete:
            return neutral(palette, 0.4);
        case Material::Air:
            return neutral(palette, 0.0);
        case Material::Bar:
            return accent(palette, 0.35);
        case Material::LevelMark:
        case Material::CriticalBar:
        case Material::Point:
        case Material::CriticalPoint:
            break;
    }
    return accent(palette, 1.0);
}

QColor inkColour(const QPalette& palette, Stroke stroke) {
    switch (stroke) {
        case Stroke::Water:
        case Stroke::Groundwater:
        case Stroke::GroundwaterLimit:
        case Stroke::Flow:
        case Stroke::Curve:
            return accent(palette, 1.0);
        case Stroke::Leader:
            return neutral(palette, 0.45);
        case Stroke::GridLine:
            return neutral(palette, 0.2);
        case Stroke::FineGridLine:
            return neutral(palette, 0.1);
        case Stroke::Ground:
        case Stroke::Outline:
        case Stroke::Dimension:
        case Stroke::Axis:
        case Stroke::Series:
            break;
    }
    return neutral(palette, 0.8);
}

QColor seriesColour(const QPalette& palette, std::size_t series) {
    const QColor on_white = QColor::fromRgb(picture::seriesColour(series));
    const bool dark_paper = palette.color(QPalette::Active, QPalette::Base).lightnessF() < 0.5F;
    return dark_paper ? QColor::fromHslF(std::max(on_white.hslHueF(), 0.0F), on_white.hslSaturationF(),
                                         1.0F - on_white.lightnessF())
                      : on_white;
}

QColor textColour(const QPalette& palette, Emphasis emphasis) {
    return neutral(palette, emphasis == Emphasis::Quiet ? 0.75 : 1.0);
}

void paintDrawing(QPainter& painter, const picture::Drawing& drawing, const QPalette& palette,
                  const QFont& font) {
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = textSizes(font).line_height;
    for (const picture::PlacedArea& area : drawing.areas) {
        const QPolygonF polygon = polygonOf(area.corners);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fillColour(palette, area.material));
        painter.drawPolygon(polygon);
        paintPattern(painter, polygon, area.material, palette, line);
    }
    for (const picture::PlacedEllipse& ellipse : drawing.ellipses) {
        painter.setPen(QPen(inkColour(palette, Stroke::Outline), line / 18));
        painter.setBrush(fillColour(palette, ellipse.material));
        painter.drawEllipse(rectOf(ellipse.box));
    }
    painter.setBrush(Qt::NoBrush);
    for (const picture::PlacedLine& placed : drawing.lines) {
        painter.setPen(penOf(palette, placed, line));
        painter.drawPolyline(polygonOf(placed.points));
    }
    for (const picture::PlacedMark& mark : drawing.marks) {
        paintMark(painter, mark, palette, line);
    }
    for (const picture::PlacedText& text : drawing.texts) {
        paintText(painter, text, palette, font);
    }
}

}  // namespace mero::qt
