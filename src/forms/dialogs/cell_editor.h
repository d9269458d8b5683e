// SPDX-License-Identifier: MIT
/// The grid cell editor that the dialogs share: one text box laid over the current cell of a grid.
/// Each dialog says what the editor's text means; opening, keys and closing are the same everywhere.
#pragma once

#include <string>

#include "platform/controls/grid.h"
#include "platform/controls/text_box.h"

namespace mero::forms {

/// Enter or Escape hides the editor and gives the focus back to the grid; other keys do nothing.
void EditKeyCode(platform::Grid& grid, platform::TextBox& editor, platform::Key key);

class CellEditor {
  public:
    /// The editor closes on Enter, Escape, and when it loses the focus. What was typed is stored already, so
    /// Escape undoes nothing.
    CellEditor(platform::Grid& grid, platform::TextBox& editor);

    /// Lays the editor over the grid's current cell with `text` in it, all selected, and gives it the focus.
    /// The text is shown, not typed: the change handler does not run.
    void open(std::string text);
    void close();
    /// The cell that is being edited.
    [[nodiscard]] platform::GridCell cell() const { return cell_; }

  private:
    platform::Grid* grid_;
    platform::TextBox* editor_;
    platform::GridCell cell_;
};

}  // namespace mero::forms
