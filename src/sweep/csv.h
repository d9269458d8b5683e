// SPDX-License-Identifier: MIT
/// Formats the rows of a sweep as CSV (RFC 4180): commas, decimal points, CR LF, UTF-8.
/// Columns: the varied values, every result that one of the types has, the verdicts' codes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "project/prepare_site.h"
#include "sweep/variants.h"

namespace mero::sweep {

/// The text as one cell, quoted when it holds a comma, a quote or a line end.
[[nodiscard]] std::string csvCell(std::string_view text);

class CsvTable {
  public:
    CsvTable(const Variants& variants, const project::RainStore& rain);

    [[nodiscard]] std::string header() const;
    /// Appends the rows of `count` variants, starting with `first`. Threads may call it at the same time with
    /// different texts.
    void appendRows(std::uint64_t first, std::uint64_t count, std::string& text) const;

  private:
    void appendRow(const VariantWalk& walk, std::string& text) const;

    const Variants* variants_;
    const project::RainStore* rain_;
    std::vector<design::Quantity> results_;
    std::vector<std::vector<std::string>> cells_;  ///< texts of the varied values
};

}  // namespace mero::sweep
