// SPDX-License-Identifier: MIT
/// A grid of texts with one header row; cells may carry the marked or the unmarked picture.
/// The cell change handler runs when the current cell changes, the click handler at every click.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/controls/control.h"

namespace mero::platform {

enum class Alignment { Left, Centre };

/// A column, from the header's format string and the form's widths.
struct GridColumn {
    double width_fraction = 0;  ///< of the grid's width
    Alignment header = Alignment::Left;
    Alignment cells = Alignment::Left;
    bool merges_equal_neighbours = false;
};

/// A cell by its row (0 is the header) and column.
struct GridCell {
    int row = 0;
    int column = 0;
    friend bool operator==(const GridCell&, const GridCell&) = default;
};

class Grid : public Control {
  public:
    using Control::Control;

    /// Empties the grid and sets its header: columns separated by "|", a leading "<" left-aligns a column.
    void build(std::string_view header_format, const std::vector<double>& width_fractions);
    /// Adds a data row at the end; missing cells are empty.
    void addRow(std::vector<std::string> cells);
    void alignColumn(int column, Alignment alignment);
    void mergeColumn(int column);

    /// Rows with the header as row 0.
    [[nodiscard]] const std::vector<std::vector<std::string>>& rows() const { return rows_; }
    [[nodiscard]] const std::vector<GridColumn>& columns() const { return columns_; }
    /// Number of rows without the header.
    [[nodiscard]] int dataRows() const { return rows_.empty() ? 0 : static_cast<int>(rows_.size()) - 1; }
    /// True when the cell is one of the data rows.
    [[nodiscard]] bool hasDataCell(GridCell cell) const;

    void setText(GridCell cell, std::string text);
    /// The picture of a cell: marked, unmarked, or none.
    [[nodiscard]] std::optional<bool> mark(GridCell cell) const;
    void setMark(GridCell cell, std::optional<bool> marked);

    /// The current cell, and the cell that was clicked last.
    [[nodiscard]] GridCell current() const { return current_; }
    [[nodiscard]] GridCell mouse() const { return mouse_; }

    /// The user clicks a cell of the data rows: it becomes the current cell, then the click handler runs.
    void userClick(GridCell cell);

    /// Runs with the cell that is being left, when another cell becomes the current one.
    std::function<void(GridCell left)> cell_changed;
    std::function<void()> clicked;

  private:
    std::vector<std::vector<std::string>> rows_;
    std::vector<std::vector<std::optional<bool>>> marks_;
    std::vector<GridColumn> columns_;
    GridCell current_{1, 0};
    GridCell mouse_{0, 0};
};

}  // namespace mero::platform
