// SPDX-License-Identifier: MIT
/// Finds rows on a page.
/// A row ends where the one before it starts, so an offset that is out of order is damage.
#include "data/jet/data_page.h"

namespace mero::data::jet {
namespace {

constexpr std::size_t kRowCountOffset = 12;
constexpr std::size_t kEntriesOffset = 14;
constexpr std::size_t kEntrySize = 2;

constexpr unsigned kSkippedFlag = 0x8000;
constexpr unsigned kPointerFlag = 0x4000;
constexpr unsigned kStartBits = 0x1fff;

}  // namespace

DataPage::DataPage(const File& file, std::uint32_t number)
    : page_(file.page(number, PageType::Data)), rows_(page_.u16(kRowCountOffset)) {
    static_cast<void>(page_.part(kEntriesOffset, rows_ * kEntrySize));
}

std::uint16_t DataPage::entry(std::size_t row) const {
    if (row >= rows_) {
        failDamaged("a page has fewer rows than a pointer says");
    }
    return page_.u16(kEntriesOffset + row * kEntrySize);
}

bool DataPage::isSkipped(std::size_t row) const {
    return (entry(row) & kSkippedFlag) != 0;
}

bool DataPage::isPointer(std::size_t row) const {
    return (entry(row) & kPointerFlag) != 0;
}

Bytes DataPage::row(std::size_t row) const {
    const std::size_t start = entry(row) & kStartBits;
    const std::size_t end = row == 0 ? kPageSize : entry(row - 1) & kStartBits;
    if (start > end || start < kEntriesOffset + rows_ * kEntrySize) {
        failDamaged("a row lies outside its page or on another row");
    }
    return page_.part(start, end - start);
}

}  // namespace mero::data::jet
