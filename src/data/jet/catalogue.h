// SPDX-License-Identifier: MIT
/// The catalogue: the tables of a file and the pages of their definitions.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/jet/file.h"

namespace mero::data::jet {

struct CatalogueEntry {
    std::string name;
    std::uint32_t definition_page = 0;
};

class Catalogue {
  public:
    /// Reads it whole and compares it with the pages of the file.
    /// @throws Failure Damaged when it is not complete or names a page or a table twice
    explicit Catalogue(const File& file);

    [[nodiscard]] const std::vector<CatalogueEntry>& tables() const { return tables_; }
    /// Page of the definition of the table with that name in any case of its letters.
    [[nodiscard]] std::optional<std::uint32_t> find(std::string_view name) const;

  private:
    std::vector<CatalogueEntry> tables_;
};

}  // namespace mero::data::jet
