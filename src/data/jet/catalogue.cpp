// SPDX-License-Identifier: MIT
/// Reads the catalogue, which is a table itself.
/// A page that defines a table without an entry means that entries were lost, so the file is not to be
/// trusted.
#include "data/jet/catalogue.h"

#include <algorithm>

#include "data/jet/same_name.h"
#include "data/jet/table_rows.h"
#include "data/jet/text.h"
#include "data/jet/value.h"

namespace mero::data::jet {
namespace {

constexpr std::uint32_t kCataloguePage = 2;
constexpr double kTable = 1.0;
/// Bits of an entry's number that are the page of its definition.
constexpr std::uint32_t kPageBits = 0x00ffffff;

const Column& columnOf(const TableDefinition& catalogue, std::string_view name, ColumnType type) {
    const auto found = std::ranges::find(catalogue.columns, name, &Column::name);
    if (found == catalogue.columns.end() || found->type != type) {
        failDamaged("the catalogue has no column " + std::string(name));
    }
    return *found;
}

void requireDistinct(const std::vector<CatalogueEntry>& tables) {
    for (auto one = tables.begin(); one != tables.end(); ++one) {
        const bool doubtful = std::any_of(one + 1, tables.end(), [&](const CatalogueEntry& other) {
            return other.definition_page == one->definition_page || isSameName(other.name, one->name);
        });
        if (doubtful) {
            failDamaged("the catalogue has a table more than once: " + one->name);
        }
    }
}

/// Does every page in use that defines a table belong to one of the entries, and has every table its pages?
void requireComplete(const File& file, const std::vector<CatalogueEntry>& tables) {
    std::vector<bool> lost = pagesInUse(file);
    for (const CatalogueEntry& entry : tables) {
        for (const std::uint32_t page : definitionPages(file, entry.definition_page)) {
            lost[page] = false;
        }
        static_cast<void>(dataPages(file, entry.definition_page));
    }
    for (std::uint32_t page = 1; page < file.pages(); ++page) {
        if (lost[page] && file.isOfType(page, PageType::TableDefinition)) {
            failDamaged("a table is not in the catalogue");
        }
    }
}

}  // namespace

Catalogue::Catalogue(const File& file) {
    const TableDefinition catalogue = tableDefinition(file, kCataloguePage);
    const Column& id = columnOf(catalogue, "Id", ColumnType::LongInteger);
    const Column& name = columnOf(catalogue, "Name", ColumnType::Text);
    const Column& type = columnOf(catalogue, "Type", ColumnType::Integer);
    forEachRow(file, catalogue, [&](const Row& row) {
        const auto id_bytes = row.value(id);
        const auto name_bytes = row.value(name);
        const auto type_bytes = row.value(type);
        if (!id_bytes || !name_bytes || !type_bytes) {
            failDamaged("an entry of the catalogue is empty");
        }
        if (numberOf(type, *type_bytes) == kTable) {
            tables_.push_back({textValue(*name_bytes), id_bytes->u32(0) & kPageBits});
        }
    });
    requireDistinct(tables_);
    requireComplete(file, tables_);
}

std::optional<std::uint32_t> Catalogue::find(std::string_view name) const {
    const auto found = std::ranges::find_if(
        tables_, [&](const CatalogueEntry& entry) { return isSameName(entry.name, name); });
    return found == tables_.end() ? std::nullopt : std::optional(found->definition_page);
}

}  // namespace mero::data::jet
