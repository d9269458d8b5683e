// SPDX-License-Identifier: MIT
/// Decodes texts.
/// A compressed text starts with a mark; a zero byte switches between one and two bytes for a character.
#include "data/jet/text.h"

#include <algorithm>
#include <array>

namespace mero::data::jet {
namespace {

constexpr std::uint16_t kCompressedMark = 0xfeff;

constexpr bool isHighSurrogate(std::uint32_t unit) {
    return unit >= 0xd800 && unit < 0xdc00;
}
constexpr bool isLowSurrogate(std::uint32_t unit) {
    return unit >= 0xdc00 && unit < 0xe000;
}

void append(std::string& text, std::uint32_t character) {
    // The leading bytes of one to four, and from which character on each is needed.
    constexpr std::array<std::uint32_t, 4> kLead{0x00, 0xc0, 0xe0, 0xf0};
    constexpr std::array<std::uint32_t, 3> kFrom{0x80, 0x800, 0x10000};
    const auto more = static_cast<std::size_t>(
        std::ranges::count_if(kFrom, [&](std::uint32_t from) { return character >= from; }));
    text += static_cast<char>(kLead.at(more) | character >> (6U * more));
    for (std::size_t left = more; left-- > 0;) {
        text += static_cast<char>(0x80U | (character >> (6U * left) & 0x3fU));
    }
}

std::string utf8Of(const std::vector<std::uint16_t>& units) {
    std::string text;
    for (std::size_t at = 0; at < units.size(); ++at) {
        std::uint32_t character = units[at];
        if (isHighSurrogate(character) && at + 1 < units.size() && isLowSurrogate(units[at + 1])) {
            character = 0x10000U + ((character - 0xd800U) << 10U) + (units[++at] - 0xdc00U);
        } else if (isHighSurrogate(character) || isLowSurrogate(character)) {
            failDamaged("half a character");
        }
        append(text, character);
    }
    return text;
}

std::vector<std::uint16_t> decompressed(Bytes bytes) {
    std::vector<std::uint16_t> units;
    bool compressed = true;
    for (std::size_t at = 0; at < bytes.size();) {
        if (bytes.u8(at) == 0) {
            compressed = !compressed;
            ++at;
        } else if (compressed) {
            units.push_back(bytes.u8(at++));
        } else {
            units.push_back(bytes.u16(at));
            at += 2;
        }
    }
    return units;
}

std::vector<std::uint16_t> unitsOf(Bytes bytes) {
    std::vector<std::uint16_t> units;
    for (std::size_t at = 0; at < bytes.size(); at += 2) {
        units.push_back(bytes.u16(at));
    }
    return units;
}

}  // namespace

std::string utf8Of(Bytes name) {
    return utf8Of(unitsOf(name));
}

std::string textValue(Bytes value) {
    const bool is_compressed = value.size() >= 2 && value.u16(0) == kCompressedMark;
    return utf8Of(is_compressed ? decompressed(value.part(2, value.size() - 2)) : unitsOf(value));
}

}  // namespace mero::data::jet
