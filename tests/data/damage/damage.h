// SPDX-License-Identifier: MIT
/// Ways to damage a rain database: every one is a copy of the file with a name that tells what was done.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mero::data::damage {

inline constexpr std::size_t kPage = 4096;

/// The pages that one station's table hangs on.
struct Places {
    std::size_t rows = 0;
    std::size_t header = 0;
    std::size_t map = 0;
};

/// Finds them by the bytes of the table's first row: the duration as 16-bit and the first intensity as
/// Single.
/// @throws std::invalid_argument when the file does not have those bytes exactly once
[[nodiscard]] Places placesOf(const std::string& file, double first_duration, double first_intensity);

enum class Kind { Cut, Zeroed, Swapped, Bits, Forged };
inline constexpr std::array kKinds{Kind::Cut, Kind::Zeroed, Kind::Swapped, Kind::Bits, Kind::Forged};
[[nodiscard]] std::string_view nameOf(Kind kind);

/// One damaged file.
struct Damaged {
    Kind kind = Kind::Cut;
    std::string name;
    std::string content;
    /// Whether bytes changed that hold the values themselves or say what they are: the rows' page, the
    /// header.
    bool touches_values = false;
};

/// All damages of a file, one after another; the same for the same seed.
void forEachDamage(const std::string& file, const Places& places, std::uint32_t seed,
                   const std::function<void(const Damaged&)>& use);

}  // namespace mero::data::damage
