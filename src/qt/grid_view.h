// SPDX-License-Identifier: MIT
/// A grid as a table widget: header row, column widths as fractions, merged neighbours, pictures.
#pragma once

#include <QPointer>
#include <QTableView>
#include <optional>
#include <vector>

#include "platform/controls/grid.h"
#include "qt/grid_model.h"
#include "qt/number_line.h"
#include "qt/widget_kit.h"

namespace mero::qt {

/// Preferred size of a grid; its window may give it more or less.
struct GridRoom {
    int characters;  ///< width in average characters
    int rows;        ///< data rows visible without scrolling
};

/// What the cells of a column take.
struct CellEntry {
    bool editable = true;
    std::optional<NumberEntry> number{};  ///< none: any text
};

class GridView : public QTableView {
  public:
    /// @param choice_column column of the pictures, where a click picks the row
    /// @param room          preferred size
    GridView(WidgetKit& kit, platform::Grid& grid, int choice_column, GridRoom room, QWidget& parent);

    /// Updates the view from the grid at once instead of after the running event.
    void refresh();
    /// Where a cell of the data rows is drawn, in coordinates of the viewport.
    [[nodiscard]] QRect cellRect(platform::GridCell cell) const;
    /// Heading and row of a cell in words.
    [[nodiscard]] QString spokenPlace(platform::GridCell cell) const;
    /// Scrolls until the cell is visible.
    void reveal(platform::GridCell cell);

    [[nodiscard]] QSize sizeHint() const override;

    /// Sets the editor: typing over a cell of an editable column clicks the cell and types into the editor,
    /// if what the column takes can begin so.
    /// @param entries by column; columns without one take any text
    void setEditor(NumberLine& editor, std::vector<CellEntry> entries);
    /// What the cells of a column take. The column of the pictures takes nothing.
    [[nodiscard]] CellEntry entry(int column) const;
    [[nodiscard]] const platform::Grid& grid() const { return *grid_; }
    [[nodiscard]] int choiceColumn() const { return model_.choiceColumn(); }
    /// The cell with the keyboard's focus, none in an empty grid.
    [[nodiscard]] std::optional<platform::GridCell> focusedCell() const;
    /// Enters a text as a person does: a click on the cell, the text, Enter. False when no editor opens.
    bool enterCell(platform::GridCell cell, const QString& text);

    /// Adds a row to the grid with the texts of its columns, as a person does; false when there is none then.
    /// Without it a grid keeps its rows.
    std::function<bool(const std::vector<QString>&)> add_row;

    /// Called when cells have moved: scrolled, resized, refreshed.
    std::function<void()> cells_moved;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    [[nodiscard]] std::optional<platform::GridCell> cellAt(QPoint position) const;
    void click(platform::GridCell cell);
    /// Opens the editor of the current cell with the key that was typed.
    bool typeIntoCell(QKeyEvent& event);
    void refreshLater();
    void layOut();
    [[nodiscard]] std::vector<int> columnWidths(int available) const;
    [[nodiscard]] std::vector<int> rowHeights(const std::vector<int>& widths) const;
    /// Height of the first rows, all columns together being that wide.
    [[nodiscard]] int rowsHeight(int available, int rows) const;
    /// The row after the last one that is merged with `first` in this column.
    [[nodiscard]] int endOfMerged(int first, int column) const;
    [[nodiscard]] bool merges(int column) const;
    [[nodiscard]] int headingWidth(int column) const;

    WidgetKit* kit_;
    platform::Grid* grid_;
    GridModel model_;
    GridRoom room_;
    bool stale_ = true;  ///< not updated from the grid; true until first shown
    bool laying_out_ = false;
    std::optional<platform::GridCell> pressed_;
    QPointer<NumberLine> editor_;
    std::vector<CellEntry> entries_;
};

/// Builds the view of a grid and binds it.
GridView& makeGrid(WidgetKit& kit, platform::Grid& grid, int choice_column, GridRoom room, QWidget& parent);

}  // namespace mero::qt
