// SPDX-License-Identifier: MIT
/// Blocks of cells as spreadsheets put them on the clipboard: tabs between cells, line ends between rows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mero::platform {

using CellBlock = std::vector<std::vector<std::string>>;

/// The cells of a text. A cell with a tab or a line end in it stands in double quotes, which are doubled
/// inside. Line ends behind the last row are none of its rows; blanks around a cell are dropped.
[[nodiscard]] CellBlock readCellBlock(std::string_view text);

/// The text of cells, for readCellBlock() and for spreadsheets.
[[nodiscard]] std::string writeCellBlock(const CellBlock& cells);

}  // namespace mero::platform
