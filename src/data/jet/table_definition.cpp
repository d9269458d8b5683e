// SPDX-License-Identifier: MIT
/// Reads definitions: a head, entries of the indexes, entries of the columns, names of the columns.
/// One that does not fit a page goes on behind the head of the next one.
#include "data/jet/table_definition.h"

#include <algorithm>
#include <optional>

#include "data/jet/text.h"

namespace mero::data::jet {
namespace {

constexpr std::size_t kNextPageOffset = 4;
constexpr std::size_t kPageHead = 8;
/// 255 columns with names of 64 characters and 32 indexes take 13 pages.
constexpr std::size_t kMostPages = 64;
constexpr std::size_t kMostColumns = 255;

// The head.
constexpr std::size_t kLengthOffset = 8;
constexpr std::size_t kRowsOffset = 16;
constexpr std::size_t kColumnsEverOffset = 41;
constexpr std::size_t kVariableColumnsOffset = 43;
constexpr std::size_t kColumnsOffset = 45;
constexpr std::size_t kIndexesOffset = 51;
constexpr std::size_t kDataPagesOffset = 55;
constexpr std::size_t kHeadSize = 63;
constexpr std::size_t kIndexSize = 12;

// The entry of a column.
constexpr std::size_t kColumnSize = 25;
constexpr std::size_t kNumberOffset = 5;
constexpr std::size_t kVariableNumberOffset = 7;
constexpr std::size_t kScaleOffset = 12;
constexpr std::size_t kFlagsOffset = 15;
constexpr std::size_t kFixedOffsetOffset = 21;
constexpr std::size_t kSizeOffset = 23;
constexpr unsigned kFixedFlag = 1;

/// The definition's pages as one, without the heads of those after the first.
std::vector<std::uint8_t> joined(const File& file, const std::vector<std::uint32_t>& pages) {
    std::vector<std::uint8_t> bytes;
    for (const std::uint32_t page : pages) {
        const std::size_t head = page == pages.front() ? 0 : kPageHead;
        const auto part = file.page(page).part(head, kPageSize - head).span();
        bytes.insert(bytes.end(), part.begin(), part.end());
    }
    return bytes;
}

/// Bytes of a value of the type; empty where it varies, 0 for a type that is unknown.
std::optional<std::uint16_t> storedSize(ColumnType type) {
    switch (type) {
        case ColumnType::Byte:
            return 1;
        case ColumnType::Integer:
            return 2;
        case ColumnType::LongInteger:
        case ColumnType::Single:
            return 4;
        case ColumnType::Currency:
        case ColumnType::Double:
        case ColumnType::Date:
            return 8;
        case ColumnType::Guid:
            return 16;
        case ColumnType::Decimal:
            return 17;
        case ColumnType::YesNo:
        case ColumnType::Binary:
        case ColumnType::Text:
        case ColumnType::Ole:
        case ColumnType::Memo:
            return std::nullopt;
    }
    return 0;
}

/// Is the column stored as its type is?
bool hasShapeOfItsType(const Column& column) {
    const bool is_long = column.type == ColumnType::Ole || column.type == ColumnType::Memo;
    const auto size = storedSize(column.type);
    return size ? column.size == *size && *size > 0 : !(is_long && column.is_fixed);
}

Column columnOf(Bytes entry) {
    const auto type = static_cast<ColumnType>(entry.u8(0));
    return {.name = {},
            .type = type,
            .number = entry.u16(kNumberOffset),
            .variable_number = entry.u16(kVariableNumberOffset),
            .fixed_offset = entry.u16(kFixedOffsetOffset),
            .size = entry.u16(kSizeOffset),
            .is_fixed = (entry.u8(kFlagsOffset) & kFixedFlag) != 0,
            .has_one_size = storedSize(type).has_value(),
            .scale = entry.u8(kScaleOffset)};
}

/// Things of which each belongs to at most one column: numbers, bytes of the row.
class Shares {
  public:
    explicit Shares(std::size_t count) : taken_(count) {}

    /// @return false when one of them is taken already or does not exist
    bool take(std::size_t first, std::size_t count) {
        if (first > taken_.size() || count > taken_.size() - first) {
            return false;
        }
        for (std::size_t at = first; at < first + count; ++at) {
            if (taken_[at]) {
                return false;
            }
            taken_[at] = true;
        }
        return true;
    }

  private:
    std::vector<bool> taken_;
};

void checkColumns(const TableDefinition& table, std::size_t variable_columns) {
    Shares numbers(table.columns_ever);
    Shares variable(variable_columns);
    Shares bytes(kPageSize);
    for (const Column& column : table.columns) {
        // A yes or no is one of the row's flags.
        const bool has_bytes = column.is_fixed && column.type != ColumnType::YesNo;
        const bool has_place = column.is_fixed ? !has_bytes || bytes.take(column.fixed_offset, column.size)
                                               : variable.take(column.variable_number, 1);
        if (!hasShapeOfItsType(column) || !has_place || !numbers.take(column.number, 1)) {
            failDamaged("a column is not where or what it can be: " + column.name);
        }
    }
}

}  // namespace

bool TableDefinition::hasVariablePart(std::size_t columns_of_row) const {
    return std::ranges::any_of(
        columns, [&](const Column& column) { return !column.is_fixed && column.number < columns_of_row; });
}

std::vector<std::uint32_t> definitionPages(const File& file, std::uint32_t first) {
    std::vector<std::uint32_t> pages;
    for (std::uint32_t page = first; page != 0;
         page = file.page(page, PageType::TableDefinition).u32(kNextPageOffset)) {
        if (pages.size() == kMostPages || std::ranges::find(pages, page) != pages.end()) {
            failDamaged("a table's definition has no end");
        }
        pages.push_back(page);
    }
    return pages;
}

std::vector<std::uint32_t> dataPages(const File& file, std::uint32_t definition) {
    return mappedPages(file, rowPointer(file.page(definition, PageType::TableDefinition), kDataPagesOffset));
}

TableDefinition tableDefinition(const File& file, std::uint32_t first) {
    const std::vector<std::uint8_t> content = joined(file, definitionPages(file, first));
    const Bytes whole(content);
    const Bytes bytes = whole.part(0, kPageHead + whole.u32(kLengthOffset));

    TableDefinition table{.page = first,
                          .rows = bytes.u32(kRowsOffset),
                          .columns_ever = bytes.u16(kColumnsEverOffset),
                          .columns = {}};
    const std::size_t count = bytes.u16(kColumnsOffset);
    if (count == 0 || count > kMostColumns) {
        failDamaged("a table with no columns or too many");
    }
    std::size_t at = kHeadSize + static_cast<std::size_t>(bytes.u32(kIndexesOffset)) * kIndexSize;
    for (std::size_t column = 0; column < count; ++column, at += kColumnSize) {
        table.columns.push_back(columnOf(bytes.part(at, kColumnSize)));
    }
    for (Column& column : table.columns) {
        const std::size_t length = bytes.u16(at);
        column.name = utf8Of(bytes.part(at + 2, length));
        at += 2 + length;
    }
    std::ranges::sort(table.columns, {}, &Column::number);
    checkColumns(table, bytes.u16(kVariableColumnsOffset));
    return table;
}

}  // namespace mero::data::jet
