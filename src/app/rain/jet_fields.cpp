// SPDX-License-Identifier: MIT
/// Checks types, sizes and positions of the fields.
/// A table's header has no checksum; these comparisons detect most damage.
#include "app/rain/jet_fields.h"

#include <algorithm>
#include <utility>

namespace mero::rain {
namespace {

/// Bytes by which the count of all fields that the table ever had precedes the count of its fields in the
/// table's header.
constexpr int kFieldsEverBeforeFields = 4;

FieldType typeOf(const MdbColumn& column, bool has_wide_text) {
    switch (column.col_type) {
        case MDB_BYTE:
            return FieldType::Byte;
        case MDB_INT:
            return FieldType::Integer;
        case MDB_LONGINT:
            return FieldType::LongInteger;
        case MDB_FLOAT:
            return FieldType::Single;
        case MDB_DOUBLE:
            return FieldType::Double;
        case MDB_MONEY:
            return FieldType::Currency;
        case MDB_NUMERIC:
            return FieldType::Decimal;
        case MDB_TEXT:
            return has_wide_text ? FieldType::WideText : FieldType::NarrowText;
        default:
            return FieldType::Other;
    }
}

/// True when the field is stored as its type is stored in undamaged files.
bool hasShapeOfItsType(const Field& field) {
    const MdbColumn& column = *field.column;
    const bool is_fixed = column.is_fixed != 0;
    const std::size_t size = storedSize(field.type);
    if (size != 0) {  // a number
        return std::cmp_equal(column.col_size, size) && (is_fixed || field.type == FieldType::Decimal);
    }
    switch (column.col_type) {
        case MDB_BOOL:
        case MDB_DATETIME:
        case MDB_REPID:
        case MDB_COMPLEX:
        case MDB_BINARY:
        case MDB_TEXT:
            return true;
        case MDB_OLE:
        case MDB_MEMO:
            return !is_fixed;
        default:
            return false;
    }
}

/// Things of which each belongs to at most one field: field numbers, bytes of the row.
class Shares {
  public:
    explicit Shares(int count) : taken_(static_cast<std::size_t>(std::max(count, 0))) {}

    /// @return false when one of them is already taken or does not exist
    bool take(int first, int count) {
        for (int at = first; at < first + count; ++at) {
            if (at < 0 || std::cmp_greater_equal(at, taken_.size()) || taken_[static_cast<std::size_t>(at)]) {
                return false;
            }
            taken_[static_cast<std::size_t>(at)] = true;
        }
        return true;
    }

  private:
    std::vector<bool> taken_;
};

/// Number of fields that the table ever had; field numbers in a row are below it.
int fieldsEver(const MdbTableDef& table, MdbHandle& handle) {
    if (std::cmp_not_equal(::mdb_read_pg(&handle, table.entry->table_pg), handle.fmt->pg_size)) {
        failRead("the table's header cannot be read");
    }
    return ::mdb_pg_get_int16(&handle, handle.fmt->tab_num_cols_offset - kFieldsEverBeforeFields);
}

}  // namespace

Fields readFields(MdbTableDef& table, MdbHandle& handle) {
    if (::mdb_read_columns(&table) == nullptr || table.columns->len != table.num_cols) {
        failRead("the fields cannot be read");
    }
    Fields fields;
    fields.ever = fieldsEver(table, handle);
    Shares bytes(MDB_PGSIZE);
    Shares places(fields.ever);
    Shares numbers(fields.ever);
    for (const MdbColumn* column : elementsOf<MdbColumn>(*table.columns)) {
        const Field field{column, typeOf(*column, handle.f->jet_version != MDB_VER_JET3)};
        const bool has_own_bytes = column->is_fixed != 0 && column->col_type != MDB_BOOL;
        if (!hasShapeOfItsType(field) || !places.take(column->col_num, 1) ||
            !numbers.take(column->row_col_num, 1) ||
            (has_own_bytes && !bytes.take(column->fixed_offset, column->col_size))) {
            failRead(std::string("the field is not where or what it can be: ") + column->name);
        }
        fields.present.push_back(field);
    }
    return fields;
}

}  // namespace mero::rain
