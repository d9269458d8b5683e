/// Catalog, fields and rows through libmdb, each checked before its values are believed.
/// The library follows damaged structures without a word, so the file's redundancy is compared here.
#include "app/rain/jet_table.h"

#include <mdbtools.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "app/rain/jet_value.h"

namespace mero::rain {
namespace {

using data::ReaderExit;
using data::StationTable;

/// Marks a file whose values are for demonstration.
constexpr const char* kDemoTable = "Demo";
/// Where every data page says which table it belongs to.
constexpr int kPageOwnerOffset = 4;

struct CloseHandle {
    void operator()(MdbHandle* handle) const { ::mdb_close(handle); }
};
struct FreeTable {
    void operator()(MdbTableDef* table) const { ::mdb_free_tabledef(table); }
};
using Handle = std::unique_ptr<MdbHandle, CloseHandle>;
using Table = std::unique_ptr<MdbTableDef, FreeTable>;

[[noreturn]] void failRead(const std::string& what) {
    throw TableError(ReaderExit::ReadFailed, what);
}

/// The elements of one of the library's arrays of pointers.
template <typename Element>
std::vector<Element*> elementsOf(const GPtrArray& array) {
    std::vector<Element*> elements;
    for (void* element : std::span(array.pdata, array.len)) {
        elements.push_back(static_cast<Element*>(element));
    }
    return elements;
}

Handle open(const std::string& path) {
    Handle handle(::mdb_open(path.c_str(), MDB_NOFLAGS));
    if (!handle || ::mdb_read_catalog(handle.get(), MDB_TABLE) == nullptr) {
        throw TableError(ReaderExit::CannotOpen, "not a database that can be read: " + path);
    }
    return handle;
}

/// The catalog's entry of a table, or null. Two entries of one name, or another one at the same place of the
/// file, are damage: nobody knows which is meant.
MdbCatalogEntry* findEntry(const MdbHandle& handle, const std::string& name) {
    const auto entries = elementsOf<MdbCatalogEntry>(*handle.catalog);
    const auto has_name = [&](const MdbCatalogEntry* entry) {
        return ::g_ascii_strcasecmp(entry->object_name, name.c_str()) == 0;
    };
    const auto found = std::find_if(entries.begin(), entries.end(), has_name);
    if (found == entries.end()) {
        return nullptr;
    }
    const bool is_doubtful = std::any_of(entries.begin(), entries.end(), [&](const MdbCatalogEntry* entry) {
        return entry != *found && (has_name(entry) || entry->table_pg == (*found)->table_pg);
    });
    if (is_doubtful) {
        failRead("the catalog has the table more than once: " + name);
    }
    return *found;
}

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

/// One field and how to read it.
struct Field {
    const MdbColumn* column = nullptr;
    FieldType type = FieldType::Other;
};

void checkField(const Field& field, std::vector<bool>& taken) {
    const std::size_t size = storedSize(field.type);
    if (size == 0) {
        return;
    }
    const MdbColumn& column = *field.column;
    if (field.type != FieldType::Decimal && column.is_fixed == 0) {
        failRead(std::string("a number of varying size: ") + column.name);
    }
    if (std::cmp_not_equal(column.col_size, size)) {
        failRead(std::string("the size of the field is not its type's: ") + column.name);
    }
    if (column.is_fixed == 0) {
        return;
    }
    for (std::size_t at = 0; at < size; ++at) {
        const int offset = column.fixed_offset + static_cast<int>(at);
        if (offset < 0 || std::cmp_greater_equal(offset, taken.size()) ||
            taken[static_cast<std::size_t>(offset)]) {
            failRead(std::string("the field lies upon another: ") + column.name);
        }
        taken[static_cast<std::size_t>(offset)] = true;
    }
}

std::vector<Field> fieldsOf(MdbTableDef& table, const MdbHandle& handle) {
    if (::mdb_read_columns(&table) == nullptr || table.columns->len != table.num_cols) {
        failRead("the fields cannot be read");
    }
    std::vector<Field> fields;
    std::vector<bool> taken(MDB_PGSIZE);
    for (const MdbColumn* column : elementsOf<MdbColumn>(*table.columns)) {
        fields.push_back({column, typeOf(*column, handle.f->jet_version != MDB_VER_JET3)});
        checkField(fields.back(), taken);
    }
    return fields;
}

StationTable::Value valueOf(const Field& field, const MdbHandle& handle) {
    const std::span page(std::as_const(handle.pg_buf));
    const int start = field.column->cur_value_start;
    const int length = field.column->cur_value_len;
    if (length == 0) {
        return std::nullopt;
    }
    if (start < 0 || length < 0 || std::cmp_greater(start, page.size()) ||
        std::cmp_greater(length, page.size() - static_cast<std::size_t>(start))) {
        failRead(std::string("a value lies outside its page: ") + field.column->name);
    }
    return numberOf(field.type,
                    page.subspan(static_cast<std::size_t>(start), static_cast<std::size_t>(length)),
                    field.column->col_scale);
}

bool isPageOf(const MdbTableDef& table, MdbHandle& handle) {
    return handle.pg_buf[0] == MDB_PAGE_DATA &&
           std::cmp_equal(::mdb_pg_get_int32(&handle, kPageOwnerOffset), table.entry->table_pg);
}

}  // namespace

StationTable readTable(const std::string& path, const std::string& table_name) {
    const Handle handle = open(path);
    MdbCatalogEntry* const entry = findEntry(*handle, table_name);
    if (entry == nullptr) {
        throw TableError(ReaderExit::TableMissing, "no such table: " + table_name);
    }
    StationTable result;
    result.demonstration = findEntry(*handle, kDemoTable) != nullptr;

    const Table table(::mdb_read_table(entry));
    if (!table) {
        failRead("the table's header cannot be read");
    }
    const std::vector<Field> fields = fieldsOf(*table, *handle);
    for (const Field& field : fields) {
        result.columns.emplace_back(field.column->name);
    }
    ::mdb_rewind_table(table.get());
    while (result.rows.size() <= table->num_rows && ::mdb_fetch_row(table.get()) != 0) {
        if (!isPageOf(*table, *handle)) {
            failRead("a row lies on a page of another table");
        }
        auto& row = result.rows.emplace_back();
        for (const Field& field : fields) {
            row.push_back(valueOf(field, *handle));
        }
    }
    if (result.rows.size() != table->num_rows) {
        failRead("the table has another number of rows than its header says");
    }
    return result;
}

}  // namespace mero::rain
