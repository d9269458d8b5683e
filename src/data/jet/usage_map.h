// SPDX-License-Identifier: MIT
/// Usage maps: sets of pages as bits. A table's map has its data pages, the file's map its free pages.
#pragma once

#include <cstdint>
#include <vector>

#include "data/jet/file.h"

namespace mero::data::jet {

/// A row on a page, as pointers name it.
struct RowPointer {
    std::uint32_t page = 0;
    std::uint8_t row = 0;
};

/// Reads a pointer of four bytes: the row, then the page.
[[nodiscard]] RowPointer rowPointer(Bytes bytes, std::size_t at);

/// The pages of a map, ascending.
/// @throws Failure Damaged when the map is none, or has a page that the file has not
[[nodiscard]] std::vector<std::uint32_t> mappedPages(const File& file, RowPointer map);

/// Which pages of the file are in use, by the map of its free pages.
/// @throws Failure Damaged when a page in use lies behind the end of the file: it was cut. The map of a large
///         file does not tell; there it shows by the pages of the tables.
[[nodiscard]] std::vector<bool> pagesInUse(const File& file);

}  // namespace mero::data::jet
