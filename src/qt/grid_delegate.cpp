// SPDX-License-Identifier: MIT
/// Paints grid cells.
/// The pictures are drawn, not stored, so they are sharp at any scale and follow the palette.
#include "qt/grid_delegate.h"

#include <QAbstractItemView>
#include <QPainter>

#include "qt/contrast.h"
#include "qt/focus_ring.h"
#include "qt/look.h"
#include "qt/style_painter.h"

namespace mero::qt {
namespace {

constexpr double kPickedTint = 0.16;

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

QRect GridDelegate::textPlace(const QStyleOptionViewItem& option, const QString& text) {
    const auto* view = dynamic_cast<const QAbstractItemView*>(option.widget);
    const int needed = textHeight(text, option.rect.width(), option.font);
    if (view == nullptr || option.rect.height() <= needed) {
        return option.rect;
    }
    // In the part of a merged cell that is not scrolled away, but never beyond the cell.
    QRect visible = option.rect & view->viewport()->rect();
    if (visible.height() < needed) {
        const bool cut_above = option.rect.top() < visible.top();
        visible.setTop(cut_above ? visible.bottom() + 1 - needed : visible.top());
        visible.setHeight(needed);
    }
    return visible;
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
    const QString text = index.data(Qt::DisplayRole).toString();
    painter->drawText(textPlace(option, text).adjusted(padded, 0, -padded, 0), alignment | Qt::TextWordWrap,
                      text);
    if (option.state & QStyle::State_HasFocus) {
        paintRing(*painter, option.rect, palette);
    }
}

void GridDelegate::paintPicture(QPainter& painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    // A cell that was never marked and one that is not marked any more mean the same.
    const bool marked = model_->mark(index).value_or(false);
    const double size = option.fontMetrics.ascent();
    QRectF box(0, 0, size, size);
    box.moveCenter(QRectF(option.rect).center());

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (marked) {
        const QColor fill = option.palette.color(QPalette::Highlight);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(box, size / 6, size / 6);
        paintTick(painter, box, option.palette.color(QPalette::HighlightedText));
    } else {
        painter.setPen(QPen(outlineColour(option.palette), 1.2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box, size / 6, size / 6);
    }
    painter.restore();
}

}  // namespace mero::qt
