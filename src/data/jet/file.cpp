// SPDX-License-Identifier: MIT
/// Checks the header of a file: signature, version, encryption, password.
/// The header's second part is enciphered by RC4 with a fixed key, the same in all files.
#include "data/jet/file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>
#include <string_view>
#include <utility>

namespace mero::data::jet {
namespace {

constexpr std::string_view kSignature("\0\1\0\0Standard Jet DB\0", 20);
constexpr std::size_t kVersionOffset = 0x14;
constexpr std::uint32_t kJet4 = 1;

constexpr std::size_t kCipherOffset = 0x18;
constexpr std::size_t kCipherLength = 128;
constexpr std::array<std::uint8_t, 4> kHeaderKey{0xc7, 0xda, 0x39, 0x6b};
using Header = std::array<std::uint8_t, kCipherLength>;

// Within the deciphered part.
constexpr std::size_t kPageKey = 0x3e - kCipherOffset;
constexpr std::size_t kPassword = 0x42 - kCipherOffset;
constexpr std::size_t kPasswordLength = 40;
constexpr std::size_t kCreationDate = 0x72 - kCipherOffset;

/// RC4 with the fixed key.
Header decipher(Bytes part) {
    std::array<std::uint8_t, 256> state{};
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t swapped = 0;
    for (std::size_t at = 0; at < state.size(); ++at) {
        swapped = static_cast<std::uint8_t>(swapped + state[at] + kHeaderKey[at % kHeaderKey.size()]);
        std::swap(state[at], state[swapped]);
    }
    Header header{};
    std::uint8_t one = 0;
    std::uint8_t other = 0;
    for (std::size_t at = 0; at < header.size(); ++at) {
        other = static_cast<std::uint8_t>(other + state[++one]);
        std::swap(state[one], state[other]);
        const auto mask = state[static_cast<std::uint8_t>(state[one] + state[other])];
        header[at] = static_cast<std::uint8_t>(part.u8(at) ^ mask);
    }
    return header;
}

/// The password is stored under a mask of four bytes, the whole days of the file's creation date.
bool hasPassword(Bytes header) {
    const std::uint64_t low = header.u32(kCreationDate);
    const std::uint64_t high = header.u32(kCreationDate + 4);
    const auto date = std::bit_cast<double>(high << 32U | low);
    const bool fits = std::isfinite(date) && std::fabs(date) < std::numeric_limits<std::int32_t>::max();
    const auto mask = static_cast<std::uint32_t>(fits ? static_cast<std::int32_t>(date) : 0);
    for (std::size_t at = 0; at < kPasswordLength; at += sizeof mask) {
        if (header.u32(kPassword + at) != mask) {
            return true;
        }
    }
    return false;
}

[[noreturn]] void failOpen(const char* what) {
    throw Failure(Failure::Kind::CannotOpen, what);
}

}  // namespace

File::File(std::span<const std::uint8_t> content)
    : content_(content), pages_(static_cast<std::uint32_t>(content.size() / kPageSize)) {
    const bool is_jet = content.size() >= kPageSize &&
                        std::equal(kSignature.begin(), kSignature.end(), content.begin(),
                                   [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
    if (!is_jet || content_.u32(kVersionOffset) != kJet4) {
        failOpen("no Jet 4 file");
    }
    const Header header = decipher(content_.part(kCipherOffset, kCipherLength));
    if (Bytes(header).u32(kPageKey) != 0) {
        failOpen("the file is encrypted");
    }
    if (hasPassword(Bytes(header))) {
        failOpen("the file has a password");
    }
    if (content.size() % kPageSize != 0) {
        failDamaged("the file ends within a page");
    }
}

Bytes File::page(std::uint32_t number) const {
    if (number >= pages_) {
        failDamaged("a page lies behind the end of the file");
    }
    return content_.part(number * kPageSize, kPageSize);
}

Bytes File::page(std::uint32_t number, PageType type) const {
    if (number == 0 || !isOfType(number, type)) {
        failDamaged("a page is of another type than its place says");
    }
    return page(number);
}

bool File::isOfType(std::uint32_t number, PageType type) const {
    return page(number).u8(0) == static_cast<std::uint8_t>(type);
}

}  // namespace mero::data::jet
