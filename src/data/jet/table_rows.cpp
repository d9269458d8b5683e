// SPDX-License-Identifier: MIT
/// Takes rows apart: number of columns, fixed part, variable part, offsets of the variable part from back to
/// front, their number, flags.
#include "data/jet/table_rows.h"

#include "data/jet/data_page.h"

namespace mero::data::jet {
namespace {

constexpr std::size_t kHead = 2;
constexpr std::size_t kOffsetSize = 2;
constexpr std::size_t kBitsOfByte = 8;
constexpr std::size_t kPointerSize = 4;

/// The row that the pointer in its old place leads to.
Bytes movedRow(const File& file, const TableDefinition& table, Bytes pointer) {
    if (pointer.size() < kPointerSize) {
        failDamaged("a pointer to a row is cut");
    }
    const RowPointer target = rowPointer(pointer, 0);
    const DataPage page(file, target.page);
    if (page.owner() != table.page || page.isPointer(target.row)) {
        failDamaged("a pointer leads to no row of its table");
    }
    return page.row(target.row);
}

}  // namespace

Row::Row(const TableDefinition& table, Bytes bytes) : bytes_(bytes), columns_(bytes.u16(0)), flags_at_(0) {
    const std::size_t flags = (columns_ + kBitsOfByte - 1) / kBitsOfByte;
    if (columns_ == 0 || columns_ > table.columns_ever || bytes.size() < kHead + flags) {
        failDamaged("a row has another number of columns than its table");
    }
    flags_at_ = bytes.size() - flags;
    fixed_end_ = flags_at_;
    if (!table.hasVariablePart(columns_)) {
        return;
    }
    variable_ = flags_at_ < kOffsetSize ? 0 : bytes.u16(flags_at_ - kOffsetSize);
    const std::size_t tail =
        (variable_ + 2) * kOffsetSize;  // the offsets, the end of the last one, the number
    if (variable_ > columns_ || flags_at_ < kHead + tail) {
        failDamaged("a row has no room for its offsets");
    }
    std::size_t before = kHead;
    for (std::size_t number = 0; number <= variable_; ++number) {
        const std::size_t start = variableStart(number);
        if (start < before || start > flags_at_ - tail) {
            failDamaged("a value lies outside its row");
        }
        before = start;
    }
    fixed_end_ = variableStart(0);
}

std::size_t Row::variableStart(std::size_t number) const {
    return bytes_.u16(flags_at_ - (number + 2) * kOffsetSize);
}

bool Row::flag(const Column& column) const {
    return column.number < columns_ &&
           (bytes_.u8(flags_at_ + column.number / kBitsOfByte) >> column.number % kBitsOfByte & 1U) != 0;
}

std::optional<Bytes> Row::value(const Column& column) const {
    // A column that was added after the row was written has no value in it.
    if (!flag(column) || column.type == ColumnType::YesNo) {
        return std::nullopt;
    }
    if (column.is_fixed) {
        const std::size_t start = kHead + column.fixed_offset;
        if (start + column.size > fixed_end_) {
            failDamaged("a value lies outside its row");
        }
        return bytes_.part(start, column.size);
    }
    if (column.variable_number >= variable_) {
        return std::nullopt;
    }
    const std::size_t start = variableStart(column.variable_number);
    const std::size_t length = variableStart(column.variable_number + 1U) - start;
    if (column.has_one_size && length != column.size) {
        failDamaged("a value has another size than its type");
    }
    return bytes_.part(start, length);
}

void forEachRow(const File& file, const TableDefinition& table,
                const std::function<void(const Row&)>& action) {
    std::uint32_t rows = 0;
    for (const std::uint32_t number : dataPages(file, table.page)) {
        const DataPage page(file, number);
        if (page.owner() != table.page) {
            failDamaged("a page of another table");
        }
        for (std::size_t row = 0; row < page.rows(); ++row) {
            const Bytes bytes = page.row(row);
            if (page.isSkipped(row)) {
                continue;
            }
            if (++rows > table.rows) {
                break;
            }
            action(Row(table, page.isPointer(row) ? movedRow(file, table, bytes) : bytes));
        }
    }
    if (rows != table.rows) {
        failDamaged("a table has another number of rows than its definition says");
    }
}

}  // namespace mero::data::jet
