// SPDX-License-Identifier: MIT
/// The text box that lies over the current cell of a grid while the cell is edited.
#pragma once

#include <QLineEdit>

#include "platform/controls/text_box.h"
#include "qt/grid_view.h"

namespace mero::qt {

/// Binds the dialog's cell editor to a line edit over the grid's current cell: a little smaller than the
/// cell, all selected when it opens, moving with the cell.
QLineEdit& makeCellEditor(WidgetKit& kit, platform::TextBox& box, GridView& view, const platform::Grid& grid);

}  // namespace mero::qt
