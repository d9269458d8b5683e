// SPDX-License-Identifier: MIT
/// Reads the catalog and the rows with libmdb.
/// The library skips unreadable data without an error, so the rows read are compared with the table's header.
#include "app/rain/jet_table.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <memory>
#include <span>
#include <system_error>
#include <utility>
#include <vector>

#include "app/rain/jet_fields.h"

namespace mero::rain {
namespace {

using data::ReaderExit;
using data::StationTable;

/// A table of this name marks a file of demonstration values.
constexpr const char* kDemoTable = "Demo";
/// Offset in every data page of the number of the table that it belongs to.
constexpr int kPageOwnerOffset = 4;
/// Bits of a row's entry on its page that hold the offset, without the flags.
constexpr int kRowStartBits = 0x1fff;

struct CloseHandle {
    void operator()(MdbHandle* handle) const { ::mdb_close(handle); }
};
struct FreeTable {
    void operator()(MdbTableDef* table) const { ::mdb_free_tabledef(table); }
};
using Handle = std::unique_ptr<MdbHandle, CloseHandle>;
using Table = std::unique_ptr<MdbTableDef, FreeTable>;

Handle open(const std::string& path) {
    Handle handle(::mdb_open(path.c_str(), MDB_NOFLAGS));
    if (!handle || ::mdb_read_catalog(handle.get(), MDB_TABLE) == nullptr) {
        throw TableError(ReaderExit::CannotOpen, "not a database that can be read: " + path);
    }
    // The library fills a truncated page with zeros, which are read as nulls.
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size % static_cast<std::uintmax_t>(handle->fmt->pg_size) != 0) {
        failRead("the file ends within a page");
    }
    return handle;
}

/// The catalog's entry of a table, or null. Two entries with one name, or another entry at the same position
/// of the file, mean damage: it is unknown which one is valid.
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

/// Position of the row that was fetched last.
struct RowExtent {
    int start = 0;
    std::size_t length = 0;
};

RowExtent lastRow(const MdbTableDef& table, MdbHandle& handle, int fields_ever) {
    RowExtent row;
    const bool found =
        ::mdb_find_row(&handle, static_cast<int>(table.cur_row) - 1, &row.start, &row.length) == 0;
    row.start &= kRowStartBits;
    if (!found || std::cmp_greater(row.length, std::size(handle.pg_buf)) ||
        std::cmp_greater(row.start, std::size(handle.pg_buf) - row.length)) {
        failRead("a row lies outside its page");
    }
    const bool has_narrow_count = handle.f->jet_version == MDB_VER_JET3;
    const int fields =
        has_narrow_count ? ::mdb_pg_get_byte(&handle, row.start) : ::mdb_pg_get_int16(&handle, row.start);
    if (fields < 1 || fields > fields_ever) {
        failRead("a row has another number of fields than its table");
    }
    return row;
}

/// The library swaps a Decimal's precision and scale; the scale is never the larger of the two.
int decimalsOf(const MdbColumn& column) {
    return std::min(column.col_scale, column.col_prec);
}

StationTable::Value valueOf(const Field& field, const RowExtent& row, const MdbHandle& handle) {
    const int start = field.column->cur_value_start;
    const int length = field.column->cur_value_len;
    if (length == 0 || field.type == FieldType::Other) {
        return std::nullopt;
    }
    if (start < row.start || length < 0 ||
        std::cmp_greater_equal(start - row.start + length,
                               row.length)) {  // a row ends with the flags of the fields
        failRead(std::string("a value lies outside its row: ") + field.column->name);
    }
    const std::span page(std::as_const(handle.pg_buf));
    return numberOf(field.type,
                    page.subspan(static_cast<std::size_t>(start), static_cast<std::size_t>(length)),
                    decimalsOf(*field.column));
}

bool isPageOf(const MdbTableDef& table, MdbHandle& handle) {
    return handle.pg_buf[0] == MDB_PAGE_DATA &&
           std::cmp_equal(::mdb_pg_get_int32(&handle, kPageOwnerOffset), table.entry->table_pg);
}

/// The database would refuse each value of such a table alone, so that a station would have no rain at all.
void requireNumbers(const StationTable& table, const Fields& fields) {
    bool has_intensity = false;
    const auto holds_numbers = [&](const char* name) {
        const auto at = columnIndex(table, name);
        has_intensity = has_intensity || at;
        return at && fields.present[*at].type != FieldType::Other;
    };
    const bool any = std::any_of(data::kIntensityFields.begin(), data::kIntensityFields.end(), holds_numbers);
    if (!any && !holds_numbers(data::kSubstituteOfLastField) && has_intensity) {
        throw TableError(ReaderExit::NoNumbers, "no field of intensities holds numbers");
    }
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
    const Fields fields = readFields(*table, *handle);
    for (const Field& field : fields.present) {
        result.columns.emplace_back(field.column->name);
    }
    requireNumbers(result, fields);
    ::mdb_rewind_table(table.get());
    while (result.rows.size() <= table->num_rows && ::mdb_fetch_row(table.get()) != 0) {
        if (!isPageOf(*table, *handle)) {
            failRead("a row lies on a page of another table");
        }
        const RowExtent extent = lastRow(*table, *handle, fields.ever);
        auto& row = result.rows.emplace_back();
        for (const Field& field : fields.present) {
            row.push_back(valueOf(field, extent, *handle));
        }
    }
    if (result.rows.size() != table->num_rows) {
        failRead("the table has another number of rows than its header says");
    }
    return result;
}

}  // namespace mero::rain
