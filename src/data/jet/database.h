// SPDX-License-Identifier: MIT
/// Reads tables of numbers from a Jet 4 file that is held in memory. Nothing is trusted: every offset is
/// checked, redundant data are compared, and the work is bounded by the size of the file.
#pragma once

#include <string_view>

#include "data/jet/catalogue.h"
#include "data/jet/table_rows.h"

namespace mero::data::jet {

class Database {
  public:
    /// @param content the whole file; it must outlive this object
    /// @throws Failure CannotOpen, Damaged
    explicit Database(std::span<const std::uint8_t> content) : file_(content), catalogue_(file_) {}

    [[nodiscard]] const Catalogue& catalogue() const { return catalogue_; }

    /// @throws Failure NoSuchTable, Damaged
    [[nodiscard]] TableDefinition table(std::string_view name) const;
    [[nodiscard]] TableDefinition table(const CatalogueEntry& entry) const {
        return tableDefinition(file_, entry.definition_page);
    }

    /// Calls `action` for each row of the table. @throws Failure Damaged
    void forEachRow(const TableDefinition& table, const std::function<void(const Row&)>& action) const {
        jet::forEachRow(file_, table, action);
    }

  private:
    File file_;
    Catalogue catalogue_;
};

}  // namespace mero::data::jet
