// SPDX-License-Identifier: MIT
/// Reads usage maps. A small one is a row with the bits themselves; a large one is a row with the numbers of
/// pages of bits.
#include "data/jet/usage_map.h"

#include <algorithm>
#include <span>

#include "data/jet/data_page.h"

namespace mero::data::jet {
namespace {

/// The map of the file's free pages.
constexpr RowPointer kFreePages{1, 0};

constexpr std::uint8_t kBitsInRow = 0;
constexpr std::uint8_t kBitsOnPages = 1;
constexpr std::size_t kNumberSize = 4;
constexpr std::size_t kPageHead = 4;
constexpr std::uint32_t kBitsOfByte = 8;
constexpr std::uint8_t kNoPages = 0;
constexpr std::uint8_t kAllPages = 0xff;
constexpr std::uint32_t kBitsOfPage = (kPageSize - kPageHead) * kBitsOfByte;

Bytes mapOf(const File& file, RowPointer pointer) {
    return DataPage(file, pointer.page).row(pointer.row);
}

/// Calls `action(first_page, bits)` for each piece of the map: bits of consecutive pages.
template <typename Action>
void forEachPiece(const File& file, Bytes map, Action action) {
    const std::uint8_t kind = map.u8(0);
    if (kind == kBitsInRow) {
        action(map.u32(1), map.part(1 + kNumberSize, map.size() - 1 - kNumberSize).span());
        return;
    }
    if (kind != kBitsOnPages) {
        failDamaged("a usage map of an unknown kind");
    }
    const std::size_t parts = (map.size() - 1) / kNumberSize;
    for (std::size_t part = 0; part < parts; ++part) {
        const std::uint32_t page = map.u32(1 + part * kNumberSize);
        if (page != 0) {
            action(static_cast<std::uint32_t>(part) * kBitsOfPage,
                   file.page(page, PageType::UsageMap).part(kPageHead, kPageSize - kPageHead).span());
        }
    }
}

/// Calls `action(page, set)` for the bits of those bytes that differ from `usual`; most bytes of a map are
/// equal.
template <typename Action>
void forEachBit(std::uint32_t first_page, std::span<const std::uint8_t> bits, std::uint8_t usual,
                Action action) {
    const auto differs = [&](std::uint8_t byte) { return byte != usual; };
    for (auto at = std::ranges::find_if(bits, differs); at != bits.end();
         at = std::find_if(at + 1, bits.end(), differs)) {
        const auto page = first_page + static_cast<std::uint32_t>(at - bits.begin()) * kBitsOfByte;
        for (std::uint32_t bit = 0; bit < kBitsOfByte; ++bit) {
            action(page + bit, (static_cast<unsigned>(*at) >> bit & 1U) != 0);
        }
    }
}

}  // namespace

RowPointer rowPointer(Bytes bytes, std::size_t at) {
    return {bytes.u24(at + 1), bytes.u8(at)};
}

std::vector<std::uint32_t> mappedPages(const File& file, RowPointer map) {
    std::vector<std::uint32_t> pages;
    forEachPiece(file, mapOf(file, map), [&](std::uint32_t first, std::span<const std::uint8_t> bits) {
        forEachBit(first, bits, kNoPages, [&](std::uint32_t page, bool set) {
            if (set) {
                static_cast<void>(file.page(page));
                pages.push_back(page);
            }
        });
    });
    return pages;
}

std::vector<bool> pagesInUse(const File& file) {
    // A page that the map does not reach is in use.
    std::vector<bool> in_use(file.pages(), true);
    const Bytes map = mapOf(file, kFreePages);
    const bool in_row = map.u8(0) == kBitsInRow;
    forEachPiece(file, map, [&](std::uint32_t first, std::span<const std::uint8_t> bits) {
        forEachBit(first, bits, kNoPages, [&](std::uint32_t page, bool free) {
            if (free && page < file.pages()) {
                in_use[page] = false;
            }
        });
        if (in_row) {
            forEachBit(first, bits, kAllPages, [&](std::uint32_t page, bool free) {
                if (!free && page >= file.pages()) {
                    failDamaged("a page in use lies behind the end of the file");
                }
            });
        }
    });
    return in_use;
}

}  // namespace mero::data::jet
