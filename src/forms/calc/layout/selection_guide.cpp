// SPDX-License-Identifier: MIT
/// Drawing of the selection guide.
/// The regions' places are those of planning practice; all texts keep their size and always fit.
#include "forms/calc/layout/selection_guide.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "qt/look.h"
#include "qt/spoken.h"

namespace mero::forms {
namespace {

/// What a system does with the water, in shares of its bar.
struct Shares {
    double infiltration = 0;
    double storage = 0;
    double overflow = 0;
};

/// A region of the chart; x: capacity of the subsoil, y: area at hand, both from 0 (little) to 1 (much).
struct Region {
    const char* label = "";
    QRectF place;
    Shares shares = {};
    FacilityType type = FacilityType::None;  ///< what a click chooses
};

const std::array<Region, 7>& regions() {
    static const std::array<Region, 7> kRegions{{
        {"vícesložkový systém", {0.0, 0.0, 0.33, 0.64}, {0.25, 0.35, 0.4}},
        {"vsakovací nádrže", {0.0, 0.67, 0.48, 0.33}, {0.4, 0.6, 0}, FacilityType::Tank},
        {"plošné vsakování", {0.5, 0.8, 0.5, 0.2}, {1, 0, 0}, FacilityType::Surface},
        {"vsakování v průlehu", {0.5, 0.59, 0.5, 0.19}, {0.7, 0.3, 0}, FacilityType::Swale},
        {"kombinace průlehu a rýhy", {0.35, 0.39, 0.6, 0.18}, {0.5, 0.5, 0}, FacilityType::SwaleTrench},
        {"vsakování rýhové a trubní", {0.4, 0.19, 0.6, 0.18}, {0.55, 0.45, 0}, FacilityType::Trench},
        {"šachtové vsakování", {0.5, 0.0, 0.5, 0.17}, {0.65, 0.35, 0}, FacilityType::Shaft},
    }};
    return kRegions;
}

enum Part { kInfiltration, kStorage, kOverflow };

constexpr std::array<const char*, 3> kLegend{"vsakování", "akumulace", "přetok"};

constexpr const char* kCapacityAxis = "vsakovací schopnost podloží";
constexpr const char* kAreaAxis = "Vhodných ploch k dispozici";

constexpr int kHintCharacters = 64;
constexpr int kLeastCharacters = 58;
constexpr int kHintLines = 24;
constexpr int kLeastLines = 20;

QColor partColour(const QPalette& palette, Part part) {
    const bool dark = qt::isDark(palette);
    switch (part) {
        case kInfiltration:
            return dark ? QColor(0x6f, 0xb5, 0x7c) : QColor(0x4c, 0x96, 0x5a);
        case kStorage:
            return dark ? QColor(0x6a, 0xa6, 0xdc) : QColor(0x35, 0x78, 0xb8);
        case kOverflow:
            break;
    }
    return dark ? QColor(0xe0, 0xa4, 0x58) : QColor(0xcf, 0x80, 0x1f);
}

QColor regionColour(const QPalette& palette, const Shares& shares) {
    constexpr double kTint = 0.22;
    const QColor wet =
        qt::mixed(partColour(palette, kInfiltration), partColour(palette, kStorage), shares.storage);
    return qt::mixed(palette.color(QPalette::Base),
                     qt::mixed(wet, partColour(palette, kOverflow), shares.overflow), kTint);
}

/// The font, smaller where the longest word of the text would not fit the width.
QFont fitted(QFont font, const QString& text, double width) {
    double longest = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        longest = std::max(longest, QFontMetricsF(font).horizontalAdvance(word));
    }
    if (longest > width) {
        font.setPointSizeF(QFontInfo(font).pointSizeF() * width / longest);
    }
    return font;
}

/// A line with an arrow head at its end.
void drawArrow(QPainter& painter, QPointF from, QPointF to, double head) {
    painter.drawLine(from, to);
    const QPointF along = (to - from) / std::max(1.0, std::hypot(to.x() - from.x(), to.y() - from.y()));
    const QPointF across(-along.y(), along.x());
    painter.drawLine(to, to - along * head + across * head / 2);
    painter.drawLine(to, to - along * head - across * head / 2);
}

void drawShares(QPainter& painter, const QPalette& palette, const QRectF& bar, const Shares& shares) {
    QRectF piece = bar;
    for (const auto& [part, share] : {std::pair{kInfiltration, shares.infiltration},
                                      std::pair{kStorage, shares.storage},
                                      {kOverflow, shares.overflow}}) {
        piece.setWidth(bar.width() * share);
        painter.fillRect(piece, partColour(palette, part));
        piece.moveLeft(piece.right());
    }
}

/// The region in words: the system and where it suits.
QString spokenPlace(const Region& region) {
    const auto amount = [](double at, const char* little, const char* medium, const char* much) {
        constexpr double kLittle = 0.35;
        constexpr double kMuch = 0.65;
        return QString::fromUtf8(at < kLittle ? little : at > kMuch ? much : medium);
    };
    return QStringLiteral("%1: schopnost podloží %2, ploch %3")
        .arg(QString::fromUtf8(region.label), amount(region.place.center().x(), "nízká", "střední", "vysoká"),
             amount(region.place.center().y(), "málo", "středně", "hodně"));
}

/// Left and below: one line for the ends of the axis, one for its caption; at the very bottom the legend.
QRectF chartPlace(const QWidget& guide) {
    const double line = guide.fontMetrics().height();
    return QRectF(guide.rect()).adjusted(2.6 * line, 0.4 * line, -0.6 * line, -4.6 * line);
}

QRectF placeOf(const Region& region, const QRectF& chart) {
    return {chart.left() + region.place.left() * chart.width(),
            chart.bottom() - region.place.bottom() * chart.height(), region.place.width() * chart.width(),
            region.place.height() * chart.height()};
}

}  // namespace

SelectionGuide::SelectionGuide(QWidget& parent) : QWidget(&parent) {
    qt::speakAs(*this, QAccessible::Graphic);
    setObjectName(QStringLiteral("guide"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Vodítko k výběru systému vsakování, graf"));
    QStringList places;
    for (const Region& region : regions()) {
        places += spokenPlace(region);
    }
    setAccessibleDescription(places.join(QLatin1String("; ")));
}

QSize SelectionGuide::sizeHint() const {
    return {qt::textWidth(*this, kHintCharacters), fontMetrics().height() * kHintLines};
}

QSize SelectionGuide::minimumSizeHint() const {
    return {qt::textWidth(*this, kLeastCharacters), fontMetrics().height() * kLeastLines};
}

QRectF SelectionGuide::regionsPlace() const {
    const double inset = 0.3 * fontMetrics().height();
    return chartPlace(*this).adjusted(inset, inset, -inset, -inset);
}

FacilityType SelectionGuide::typeAt(QPointF position) const {
    const auto found = std::ranges::find_if(
        regions(), [&](const Region& region) { return placeOf(region, regionsPlace()).contains(position); });
    return found == regions().end() ? FacilityType::None : found->type;
}

void SelectionGuide::pointAt(FacilityType type) {
    if (pointed_at_ != type) {
        pointed_at_ = type;
        setCursor(type == FacilityType::None ? Qt::ArrowCursor : Qt::PointingHandCursor);
        update();
    }
}

void SelectionGuide::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? typeAt(event->position()) : FacilityType::None;
}

void SelectionGuide::mouseMoveEvent(QMouseEvent* event) {
    pointAt(typeAt(event->position()));
}

void SelectionGuide::mouseReleaseEvent(QMouseEvent* event) {
    const FacilityType type = std::exchange(pressed_, FacilityType::None);
    if (type != FacilityType::None && type == typeAt(event->position()) && chosen) {
        chosen(type);
    }
}

void SelectionGuide::leaveEvent(QEvent* event) {
    pointAt(FacilityType::None);
    QWidget::leaveEvent(event);
}

bool SelectionGuide::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& help = dynamic_cast<const QHelpEvent&>(*event);
        const bool choosable = typeAt(help.pos()) != FacilityType::None;
        QToolTip::showText(help.globalPos(),
                           choosable ? QStringLiteral("Klepnutím přejdete k výpočtu tohoto typu") : QString(),
                           this);
        return true;
    }
    return QWidget::event(event);
}

void SelectionGuide::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = fontMetrics().height();
    const QRectF chart = chartPlace(*this);
    paintAxes(painter, chart);
    paintRegions(painter, regionsPlace());
    paintLegend(painter, QRectF(chart.left(), height() - 1.6 * line, chart.width(), 1.4 * line));
}

void SelectionGuide::paintAxes(QPainter& painter, const QRectF& chart) const {
    const double line = fontMetrics().height();
    const QColor ink = palette().color(QPalette::WindowText);
    painter.setPen(QPen(ink, line / 14));
    drawArrow(painter, chart.bottomLeft(), chart.bottomRight() + QPointF(line / 2, 0), line / 2);
    drawArrow(painter, chart.bottomLeft(), chart.topLeft() - QPointF(0, line / 3), line / 2);

    const QRectF ends(chart.left(), chart.bottom() + 0.15 * line, chart.width(), 1.2 * line);
    painter.drawText(ends, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("nízká"));
    painter.drawText(ends, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("vysoká"));
    painter.drawText(ends.translated(0, 1.2 * line), Qt::AlignHCenter | Qt::AlignVCenter,
                     QString::fromUtf8(kCapacityAxis));

    painter.save();
    painter.translate(chart.left(), chart.bottom());
    painter.rotate(-90);
    const QRectF upright(0, -1.4 * line, chart.height(), 1.2 * line);
    painter.drawText(upright, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("málo"));
    painter.drawText(upright, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("hodně"));
    painter.drawText(upright.translated(0, -1.15 * line), Qt::AlignHCenter | Qt::AlignVCenter,
                     QString::fromUtf8(kAreaAxis));
    painter.restore();
}

void SelectionGuide::paintRegions(QPainter& painter, const QRectF& chart) const {
    const double line = fontMetrics().height();
    for (const Region& region : regions()) {
        const QRectF place = placeOf(region, chart);
        const QColor fill = regionColour(palette(), region.shares);
        const bool pointed_at = region.type != FacilityType::None && region.type == pointed_at_;
        const QColor edge = qt::mixed(fill, palette().color(QPalette::WindowText), pointed_at ? 0.8 : 0.35);
        painter.setPen(QPen(edge, pointed_at ? line / 8 : line / 18));
        painter.setBrush(fill);
        painter.drawRoundedRect(place, line / 3, line / 3);

        const QString label = QString::fromUtf8(region.label);
        const QRectF inner = place.adjusted(line / 4, line / 5, -line / 4, -line / 5);
        const int flags = Qt::AlignCenter | Qt::TextWordWrap;
        painter.setFont(fitted(font(), label, inner.width()));
        const double bar_height = line / 3.5;
        const QRectF wanted = painter.boundingRect(inner, flags, label);
        const double stack = wanted.height() + 1.7 * bar_height;
        const QRectF text(inner.left(), inner.center().y() - stack / 2, inner.width(), wanted.height());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(text, flags, label);
        const double bar_width = std::min(inner.width(), 5.5 * line);
        drawShares(
            painter, palette(),
            {inner.center().x() - bar_width / 2, text.bottom() + 0.7 * bar_height, bar_width, bar_height},
            region.shares);
    }
}

void SelectionGuide::paintLegend(QPainter& painter, const QRectF& strip) const {
    const double line = fontMetrics().height();
    const double swatch = 0.75 * line;
    double width = 0;
    for (const char* text : kLegend) {
        width += swatch + fontMetrics().horizontalAdvance(QString::fromUtf8(text)) + 2 * line;
    }
    double left = strip.center().x() - (width - 1.5 * line) / 2;
    for (std::size_t i = 0; i < kLegend.size(); ++i) {
        const QString text = QString::fromUtf8(kLegend[i]);
        const QRectF box(left, strip.center().y() - swatch / 2, swatch, swatch);
        painter.fillRect(box, partColour(palette(), static_cast<Part>(i)));
        painter.setPen(palette().color(QPalette::WindowText));
        const int advance = fontMetrics().horizontalAdvance(text);
        painter.drawText(QRectF(box.right() + line / 2, strip.top(), advance + line, strip.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, text);
        left = box.right() + line / 2 + advance + 1.5 * line;
    }
}

}  // namespace mero::forms
