// SPDX-License-Identifier: MIT
/// Paints grid cells.
/// The pictures are drawn, not stored, so they are sharp at any scale and follow the palette.
#include "qt/grid_delegate.h"

#include <QPainter>
#include <QPainterPath>

#include "qt/focus_ring.h"
#include "qt/look.h"

namespace mero::qt {
namespace {

constexpr double kPickedTint = 0.16;
/// A clickable cell without a picture shows a hint, fainter than the unmarked picture.
constexpr double kHintStrength = 0.35;
constexpr double kBoxStrength = 0.75;

void paintTick(QPainter& painter, const QRectF& box, const QColor& colour) {
    QPainterPath tick;
    tick.moveTo(box.left() + 0.22 * box.width(), box.top() + 0.52 * box.height());
    tick.lineTo(box.left() + 0.43 * box.width(), box.top() + 0.73 * box.height());
    tick.lineTo(box.left() + 0.79 * box.width(), box.top() + 0.29 * box.height());
    painter.setPen(QPen(colour, 0.13 * box.width(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(tick);
}

}  // namespace

GridDelegate::GridDelegate(const GridModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(&model) {}

int GridDelegate::textHeight(const QString& text, int column_width, const QFont& font) {
    const QFontMetrics metrics(font);
    const int width = qMax(1, column_width - 2 * padding(metrics) - 2);
    const QRect bounds =
        metrics.boundingRect(QRect(0, 0, width, 1 << 20), Qt::TextWordWrap | Qt::AlignLeft, text);
    return qMax(metrics.height(), bounds.height()) + 2 * padding(metrics);
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const QPalette& palette = option.palette;
    const auto group = (option.state & QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    if (model_->rowIsMarked(index.row())) {
        painter->fillRect(option.rect, mixed(palette.color(group, QPalette::Base),
                                             palette.color(group, QPalette::Highlight), kPickedTint));
    }
    if (index.column() == model_->choiceColumn()) {
        paintPicture(*painter, option, index);
    }
    const int padded = padding(option.fontMetrics);
    painter->setPen(palette.color(group, QPalette::Text));
    painter->setFont(option.font);
    const auto alignment = index.data(Qt::TextAlignmentRole).toInt();
    painter->drawText(option.rect.adjusted(padded, 0, -padded, 0), alignment | Qt::TextWordWrap,
                      index.data(Qt::DisplayRole).toString());
    if (option.state & QStyle::State_HasFocus) {
        paintRing(*painter, option.rect, palette);
    }
}

void GridDelegate::paintPicture(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    const auto mark = model_->mark(index);
    const QColor base = option.palette.color(QPalette::Base);
    const QColor ink = option.palette.color(QPalette::Text);
    const double size = option.fontMetrics.ascent();
    QRectF box(0, 0, size, size);
    box.moveCenter(QRectF(option.rect).center());

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (mark.value_or(false)) {
        const QColor fill = option.palette.color(QPalette::Highlight);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(box, size / 6, size / 6);
        paintTick(painter, box, option.palette.color(QPalette::HighlightedText));
    } else {
        painter.setPen(QPen(mixed(base, ink, mark.has_value() ? kBoxStrength : kHintStrength), 1.2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box, size / 6, size / 6);
    }
    painter.restore();
}

}  // namespace mero::qt
