// SPDX-License-Identifier: MIT
/// Draws the cells of a grid: wrapped texts, the marked and the unmarked picture, the picked row's tint.
#pragma once

#include <QStyledItemDelegate>

#include "qt/grid_model.h"

namespace mero::qt {

class GridDelegate : public QStyledItemDelegate {
  public:
    GridDelegate(const GridModel& model, QObject* parent);

    /// Height of a cell's text in a column of that width.
    [[nodiscard]] static int textHeight(const QString& text, int column_width, const QFont& font);
    /// Blank space around a text.
    [[nodiscard]] static int padding(const QFontMetrics& metrics) { return metrics.height() / 4; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    /// Where a text stands: in the visible part of a cell that is partly scrolled away.
    [[nodiscard]] static QRect textPlace(const QStyleOptionViewItem& option, const QString& text);

  private:
    void paintPicture(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    const GridModel* model_;
};

}  // namespace mero::qt
