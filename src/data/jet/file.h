// SPDX-License-Identifier: MIT
/// A Jet 4 file as its pages of 4096 bytes. The first page is the header of the file.
#pragma once

#include <cstdint>
#include <span>

#include "data/jet/bytes.h"

namespace mero::data::jet {

inline constexpr std::size_t kPageSize = 4096;

/// The first byte of a page.
enum class PageType : std::uint8_t {
    Data = 1,
    TableDefinition = 2,
    IndexNode = 3,
    IndexLeaf = 4,
    UsageMap = 5,
};

class File {
  public:
    /// @param content the whole file; it must outlive this object
    /// @throws Failure CannotOpen for another format, an encrypted file or one with a password; Damaged for
    ///         one that ends within a page
    explicit File(std::span<const std::uint8_t> content);

    [[nodiscard]] std::uint32_t pages() const { return pages_; }
    /// @throws Failure Damaged when the file has no such page
    [[nodiscard]] Bytes page(std::uint32_t number) const;
    /// The same. @throws Failure Damaged also when the page is of another type
    [[nodiscard]] Bytes page(std::uint32_t number, PageType type) const;
    [[nodiscard]] bool isOfType(std::uint32_t number, PageType type) const;

  private:
    Bytes content_;
    std::uint32_t pages_;
};

}  // namespace mero::data::jet
