// SPDX-License-Identifier: MIT
/// The rows on a data page. They fill the page from its end; their offsets stand behind the page's head.
#pragma once

#include <cstdint>

#include "data/jet/file.h"

namespace mero::data::jet {

class DataPage {
  public:
    /// @throws Failure Damaged when it is no data page or has more rows than it has room for
    DataPage(const File& file, std::uint32_t number);

    /// Page of the definition of the table that the rows belong to.
    [[nodiscard]] std::uint32_t owner() const { return page_.u32(kOwnerOffset); }
    [[nodiscard]] std::size_t rows() const { return rows_; }

    /// Rows that were deleted, and those that only a pointer leads to.
    [[nodiscard]] bool isSkipped(std::size_t row) const;
    /// The row has grown and stands on another page; here is a pointer to it.
    [[nodiscard]] bool isPointer(std::size_t row) const;
    /// @throws Failure Damaged when there is no such row, or it overlaps another
    [[nodiscard]] Bytes row(std::size_t row) const;

  private:
    static constexpr std::size_t kOwnerOffset = 4;

    [[nodiscard]] std::uint16_t entry(std::size_t row) const;

    Bytes page_;
    std::size_t rows_;
};

}  // namespace mero::data::jet
