// SPDX-License-Identifier: MIT
/// Copies a grid for a spreadsheet, and pastes a block of cells from one.
#pragma once

#include <QPoint>
#include <QString>

#include "qt/grid_view.h"

namespace mero::qt {

/// The data rows with tabs between their cells, without columns of pictures and of numbers that only count
/// the rows; numbers have the given decimal mark and no grouping.
[[nodiscard]] QString tableText(const GridView& view, const QString& decimal_mark);

/// Copies the table. Numbers get the decimal mark of the machine's spreadsheets.
void copyTable(GridView& view);

/// Pastes a block of cells to the right and below of the cell, as if a person had entered one after the
/// other. Rows below the last one are added where the grid can be added to. Says what was left out: cells
/// that hold no number, rows and columns for which there is no room.
void pasteBlock(GridView& view, platform::GridCell first, const QString& text);

/// Pastes the clipboard at the cell with the keyboard's focus.
void pasteAtFocus(GridView& view);

/// Pastes a text of several cells at the cell being edited; false when it is one cell's text.
bool pasteInEditor(GridView& view, const QString& text);

/// Pastes a text of several cells as new rows below the last one, beginning at the column; false when it is
/// one cell's text.
bool pasteBelow(GridView& view, int column, const QString& text);

/// The menu of the grid: copying, and pasting where cells can be edited.
void showClipboardMenu(GridView& view, QPoint position, bool can_paste);

}  // namespace mero::qt
