// SPDX-License-Identifier: MIT
/// The cells of a grid as an item model; the header row is the model's header.
/// It reads the control directly and keeps only a copy of the numbers of rows and columns.
#pragma once

#include <QAbstractTableModel>

#include "platform/controls/grid.h"

namespace mero::qt {

class GridModel : public QAbstractTableModel {
  public:
    /// @param choice_column column of the cells with pictures
    GridModel(const platform::Grid& grid, int choice_column, QObject* parent);

    /// Updates the model from the grid. @return true when rows or columns were added or removed
    bool refresh();

    [[nodiscard]] int choiceColumn() const { return choice_column_; }
    /// The grid's cell for a model index; in the grid the header is row 0.
    [[nodiscard]] static platform::GridCell cellOf(const QModelIndex& index) {
        return {index.row() + 1, index.column()};
    }
    /// The picture of a cell, none outside the grid.
    [[nodiscard]] std::optional<bool> mark(const QModelIndex& index) const;
    /// True when the row has the marked picture.
    [[nodiscard]] bool rowIsMarked(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    /// Heading of the cell's column and caption of its row.
    [[nodiscard]] QString spokenPlace(const QModelIndex& index) const;

    const platform::Grid* grid_;
    int choice_column_;
    int rows_ = 0;
    int columns_ = 0;
};

}  // namespace mero::qt
