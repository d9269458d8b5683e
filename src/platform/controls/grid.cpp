// SPDX-License-Identifier: MIT
/// Builds a grid and handles clicks on it.
/// A rebuilt grid has no pictures, and its current cell is the first one.
#include "platform/controls/grid.h"

namespace mero::platform {
namespace {

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

}  // namespace

void Grid::build(std::string_view header_format, const std::vector<double>& width_fractions) {
    rows_.assign(1, {});
    marks_.assign(1, {});
    columns_.clear();
    while (true) {
        const std::size_t end = header_format.find('|');
        std::string_view caption = header_format.substr(0, end);
        GridColumn column;
        if (caption.starts_with('<')) {
            caption.remove_prefix(1);
        }
        if (columns_.size() < width_fractions.size()) {
            column.width_fraction = width_fractions[columns_.size()];
        }
        columns_.push_back(column);
        rows_[0].emplace_back(caption);
        if (end == std::string_view::npos) {
            break;
        }
        header_format.remove_prefix(end + 1);
    }
    marks_[0].resize(columns_.size());
    current_ = {1, 0};
    notify(Aspect::Cells);
}

void Grid::addRow(std::vector<std::string> cells) {
    cells.resize(columns_.size());
    rows_.push_back(std::move(cells));
    marks_.emplace_back(columns_.size());
    notify(Aspect::Cells);
}

void Grid::alignColumn(int column, Alignment alignment) {
    columns_.at(at(column)).cells = alignment;
    notify(Aspect::Cells);
}

void Grid::mergeColumn(int column) {
    columns_.at(at(column)).merges_equal_neighbours = true;
    notify(Aspect::Cells);
}

bool Grid::hasDataCell(GridCell cell) const {
    return cell.row >= 1 && cell.row <= dataRows() && cell.column >= 0 &&
           cell.column < static_cast<int>(columns_.size());
}

void Grid::setText(GridCell cell, std::string text) {
    rows_.at(at(cell.row)).at(at(cell.column)) = std::move(text);
    notify(Aspect::Cells);
}

std::optional<bool> Grid::mark(GridCell cell) const {
    return marks_.at(at(cell.row)).at(at(cell.column));
}

void Grid::setMark(GridCell cell, std::optional<bool> marked) {
    marks_.at(at(cell.row)).at(at(cell.column)) = marked;
    notify(Aspect::Cells);
}

void Grid::userClick(GridCell cell) {
    beforeUserActs();
    mouse_ = cell;
    if (cell != current_) {
        const GridCell left = current_;
        current_ = cell;
        notify(Aspect::CurrentCell);
        if (cell_changed) {
            cell_changed(left);
        }
    }
    if (clicked) {
        clicked();
    }
}

}  // namespace mero::platform
