// SPDX-License-Identifier: MIT
/// Opening and closing the grid cell editor.
/// The window lays the box over the cell that is current when the box is shown.
#include "forms/dialogs/cell_editor.h"

#include <utility>

namespace mero::forms {

void EditKeyCode(platform::Grid& grid, platform::TextBox& editor, platform::Key key) {
    if (key == platform::Key::Enter || key == platform::Key::Escape) {
        editor.hide();
        grid.setFocus();
    }
}

CellEditor::CellEditor(platform::Grid& grid, platform::TextBox& editor) : grid_(&grid), editor_(&editor) {
    editor.hide();
    editor.key_pressed = [this](platform::Key key) { EditKeyCode(*grid_, *editor_, key); };
    editor.lost_focus = [this] { close(); };
}

void CellEditor::open(std::string text) {
    cell_ = grid_->current();
    editor_->showText(std::move(text));
    editor_->show();
    editor_->setFocus();
}

void CellEditor::close() {
    if (editor_->visible()) {
        editor_->hide();
    }
}

}  // namespace mero::forms
