// SPDX-License-Identifier: MIT
/// The definition of a table: its columns, its number of rows, the map of its data pages.
/// It has no checksum, so redundant data are compared: most damage shows.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/jet/usage_map.h"

namespace mero::data::jet {

enum class ColumnType : std::uint8_t {
    YesNo = 1,
    Byte = 2,
    Integer = 3,
    LongInteger = 4,
    Currency = 5,
    Single = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Decimal = 16,
};

struct Column {
    std::string name;  ///< UTF-8
    ColumnType type = ColumnType::Text;
    std::uint16_t number = 0;           ///< its bit in the flags of a row
    std::uint16_t variable_number = 0;  ///< its place among the columns of variable length
    std::uint16_t fixed_offset = 0;     ///< its place in the fixed part of a row
    std::uint16_t size = 0;             ///< bytes; the most for a variable length
    bool is_fixed = false;              ///< it stands in the fixed part
    bool has_one_size = false;          ///< by its type
    std::uint8_t scale = 0;             ///< decimals of a Decimal
};

struct TableDefinition {
    std::uint32_t page = 0;  ///< its first page, by which other pages name the table
    std::uint32_t rows = 0;
    std::uint16_t columns_ever = 0;  ///< including deleted ones; no row has more
    std::vector<Column> columns;     ///< by their numbers
    /// Has a row with that many columns a variable part? Not one from before the first such column was added.
    [[nodiscard]] bool hasVariablePart(std::size_t columns_of_row) const;
};

/// The pages of a definition, the first one first. @throws Failure Damaged when they are not
[[nodiscard]] std::vector<std::uint32_t> definitionPages(const File& file, std::uint32_t first);

/// The data pages of a table, ascending. @throws Failure Damaged when the file has not all of them
[[nodiscard]] std::vector<std::uint32_t> dataPages(const File& file, std::uint32_t definition);

/// @throws Failure Damaged when a column overlaps another, its size is not its type's, or its type is unknown
[[nodiscard]] TableDefinition tableDefinition(const File& file, std::uint32_t first);

}  // namespace mero::data::jet
