// SPDX-License-Identifier: MIT
/// Makes damaged copies of a rain database, each with a name that describes the damage.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace mero::data::damage {

inline constexpr std::size_t kPage = 4096;

/// The pages of one station's table.
struct Places {
    std::size_t rows = 0;
    std::size_t header = 0;
    std::size_t map = 0;
};

/// Finds them by the bytes of the table's first row: 16-bit duration and first intensity as Single.
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
    /// True when bytes changed that hold or describe the values: the rows' page, the header.
    bool touches_values = false;
};

/// Calls a function for each damaged copy of a file; the same copies for the same seed.
void forEachDamage(const std::string& file, const Places& places, std::uint32_t seed,
                   const std::function<void(const Damaged&)>& use);

}  // namespace mero::data::damage
