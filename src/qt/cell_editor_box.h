// SPDX-License-Identifier: MIT
/// The text box that lies over the current cell of a grid while the cell is edited.
#pragma once

#include "platform/controls/text_box.h"
#include "qt/grid_view.h"

namespace mero::qt {

/// Binds the dialog's cell editor to a line edit over the grid's current cell. It is a little smaller than
/// the cell and moves with it; its whole text is selected when it opens.
/// @param entries what the columns take; without any, each takes any text
NumberLine& makeCellEditor(WidgetKit& kit, platform::TextBox& box, GridView& view, const platform::Grid& grid,
                           std::vector<CellEntry> entries = {});

}  // namespace mero::qt
