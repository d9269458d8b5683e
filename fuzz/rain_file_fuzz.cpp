// SPDX-License-Identifier: MIT
/// Damaged rain databases: the input is a list of edits of the shipped database, or a whole file.
/// Reading ends with the complete table or with an error, whatever the bytes.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "data/jet/failure.h"
#include "data/station_file.h"
#include "support/require.h"

namespace {

using mero::fuzz::require;
namespace data = mero::data;

constexpr std::size_t kPage = 4096;
constexpr std::int16_t kStation = 84;
constexpr unsigned char kWholeFile = 0xFF;
constexpr std::size_t kMostEdits = 16;

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// One edit as encoded in the input: kind, position, content.
struct Edit {
    std::uint8_t operation = 0;
    std::uint8_t place = 0;
    std::uint16_t page = 0;
    std::uint16_t offset = 0;
    std::uint32_t value = 0;

    static constexpr std::size_t kSize = 10;
    explicit Edit(std::string_view bytes)
        : operation(static_cast<std::uint8_t>(bytes[0])), place(static_cast<std::uint8_t>(bytes[1])) {
        std::memcpy(&page, bytes.data() + 2, sizeof page);
        std::memcpy(&offset, bytes.data() + 4, sizeof offset);
        std::memcpy(&value, bytes.data() + 6, sizeof value);
    }
};

/// The page of an edit: any page, or for an even position one of the pages of the station's table.
std::size_t pageOf(const std::string& file, const Edit& edit) {
    // Brno's rows are the only ones with 5 min and 115.5; the page names the header, the header its map.
    static const std::size_t rows = file.find(std::string("\x05\x00\x00\x00\xe7\x42", 6)) / kPage;
    std::uint32_t header = 0;
    std::memcpy(&header, file.data() + rows * kPage + 4, sizeof header);
    std::uint32_t map = 0;
    std::memcpy(&map, file.data() + header * kPage + 55, sizeof map);
    const std::array<std::size_t, 8> pages{0, 1, 2, 3, 4, rows, header, map >> 8U};
    return edit.place % 2 == 0 ? pages.at(edit.page % pages.size()) : edit.page % (file.size() / kPage);
}

void apply(const Edit& edit, const std::string& original, std::string& file) {
    const std::size_t page = pageOf(original, edit) * kPage;
    const std::size_t at = page + edit.offset % kPage;
    const std::size_t other = edit.value % (original.size() / kPage) * kPage;
    if (at + sizeof edit.value > file.size() || other + kPage > file.size()) {
        return;  // behind the end of the cut file
    }
    switch (edit.operation % 8) {
        case 0:
            file[at] = static_cast<char>(edit.value);
            break;
        case 1:
            file[at] = static_cast<char>(static_cast<unsigned char>(file[at]) ^ (1U << (edit.value % 8)));
            break;
        case 2:
            std::memcpy(file.data() + at, &edit.value, 2);
            break;
        case 3:
            std::memcpy(file.data() + at, &edit.value, 4);
            break;
        case 4:
            file.replace(page, kPage, original, other, kPage);
            break;
        case 5:
            file.replace(at, page + kPage - at, page + kPage - at, '\0');
            break;
        case 6:
            std::swap_ranges(file.begin() + static_cast<std::ptrdiff_t>(page),
                             file.begin() + static_cast<std::ptrdiff_t>(page + kPage),
                             file.begin() + static_cast<std::ptrdiff_t>(other));
            break;
        default:
            file.resize(at);
            break;
    }
}

std::string damaged(std::string_view input, const std::string& original) {
    if (!input.empty() && static_cast<unsigned char>(input.front()) == kWholeFile) {
        return std::string(input.substr(1));
    }
    std::string file = original;
    for (std::size_t edit = 0; edit < kMostEdits && input.size() >= Edit::kSize; ++edit) {
        apply(Edit(input), original, file);
        input.remove_prefix(Edit::kSize);
    }
    return file;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const std::string original = contentOf(MERO_RAIN_DATABASE);
    const std::string file = damaged({reinterpret_cast<const char*>(bytes), size}, original);
    try {
        const data::StationTable table = data::stationTable(
            {reinterpret_cast<const std::uint8_t*>(file.data()), file.size()}, data::tableName(kStation));
        for (const auto& row : table.rows) {
            require(row.size() == table.columns.size(), "a row has a value for each field");
        }
    } catch (const data::jet::Failure&) {
        // Refused as a whole.
    }
    return 0;
}
