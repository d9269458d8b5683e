// SPDX-License-Identifier: MIT
/// A part of a database file. Reading outside of it is damage and throws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "data/jet/failure.h"

namespace mero::data::jet {

class Bytes {
  public:
    Bytes() = default;
    explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    [[nodiscard]] std::span<const std::uint8_t> span() const { return bytes_; }

    /// @throws Failure Damaged when the part is not wholly inside
    [[nodiscard]] Bytes part(std::size_t at, std::size_t length) const {
        if (at > bytes_.size() || length > bytes_.size() - at) {
            throw Failure(Failure::Kind::Damaged, "an offset lies outside its page or row");
        }
        return Bytes(bytes_.subspan(at, length));
    }

    /// Unsigned little-endian numbers of 8, 16, 24 and 32 bits. @throws Failure Damaged outside the part
    [[nodiscard]] std::uint8_t u8(std::size_t at) const { return static_cast<std::uint8_t>(number(at, 1)); }
    [[nodiscard]] std::uint16_t u16(std::size_t at) const {
        return static_cast<std::uint16_t>(number(at, 2));
    }
    [[nodiscard]] std::uint32_t u24(std::size_t at) const { return number(at, 3); }
    [[nodiscard]] std::uint32_t u32(std::size_t at) const { return number(at, 4); }

  private:
    [[nodiscard]] std::uint32_t number(std::size_t at, std::size_t width) const {
        std::uint32_t value = 0;
        const auto digits = part(at, width).bytes_;
        for (std::size_t digit = width; digit-- > 0;) {
            value = value << 8U | digits[digit];
        }
        return value;
    }

    std::span<const std::uint8_t> bytes_;
};

}  // namespace mero::data::jet
