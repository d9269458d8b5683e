// SPDX-License-Identifier: MIT
/// Item model of a grid.
/// The grid may have changed since the last refresh, so every access checks that the cell exists.
#include "qt/grid_model.h"

#include "qt/texts.h"

namespace mero::qt {
namespace {

using platform::Alignment;
using platform::GridCell;

QVariant alignment(Alignment of) {
    const Qt::Alignment horizontal = of == Alignment::Centre ? Qt::AlignHCenter : Qt::AlignLeft;
    return QVariant::fromValue(static_cast<int>((horizontal | Qt::AlignVCenter).toInt()));
}

}  // namespace

GridModel::GridModel(const platform::Grid& grid, int choice_column, QObject* parent)
    : QAbstractTableModel(parent), grid_(&grid), choice_column_(choice_column) {
    refresh();
}

bool GridModel::refresh() {
    const int rows = grid_->dataRows();
    const int columns = static_cast<int>(grid_->columns().size());
    if (rows != rows_ || columns != columns_) {
        beginResetModel();
        rows_ = rows;
        columns_ = columns;
        endResetModel();
        return true;
    }
    if (rows_ > 0 && columns_ > 0) {
        emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
    }
    return false;
}

std::optional<bool> GridModel::mark(const QModelIndex& index) const {
    const GridCell cell = cellOf(index);
    return grid_->hasDataCell(cell) ? grid_->mark(cell) : std::nullopt;
}

bool GridModel::rowIsMarked(int row) const {
    return mark(index(row, choice_column_)).value_or(false);
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const GridCell cell = cellOf(index);
    if (!grid_->hasDataCell(cell)) {
        return {};
    }
    const auto column = static_cast<std::size_t>(cell.column);
    switch (role) {
        case Qt::DisplayRole:
            return shown(grid_->rows()[static_cast<std::size_t>(cell.row)][column]);
        case Qt::TextAlignmentRole:
            return alignment(grid_->columns()[column].cells);
        case Qt::AccessibleTextRole:
            if (cell.column == choice_column_) {
                return rowIsMarked(index.row()) ? QStringLiteral("vybráno") : QStringLiteral("nevybráno");
            }
            return data(index, Qt::DisplayRole);
        case Qt::AccessibleDescriptionRole:
            return spokenPlace(index);
        default:
            return {};
    }
}

QString GridModel::spokenPlace(const QModelIndex& index) const {
    const QString heading = headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString();
    QString row;
    // A row is named by its first column that does not merge equal neighbours: only that one is unique.
    for (int column = 0; column < columns_ && row.isEmpty(); ++column) {
        if (!grid_->columns()[static_cast<std::size_t>(column)].merges_equal_neighbours) {
            row = data(this->index(index.row(), column), Qt::DisplayRole).toString();
        }
    }
    return row.isEmpty() ? heading : heading + QLatin1String(", ") + row;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const auto column = static_cast<std::size_t>(section);
    if (orientation != Qt::Horizontal || section < 0 || column >= grid_->columns().size()) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return shown(grid_->rows().front()[column]);
    }
    // A heading is aligned like its column's texts, also where these are centred.
    return role == Qt::TextAlignmentRole ? alignment(grid_->columns()[column].header) : QVariant();
}

}  // namespace mero::qt
