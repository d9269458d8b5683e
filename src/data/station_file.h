// SPDX-License-Identifier: MIT
/// Reads a station's table from the bytes of a rain database.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "data/rain_database.h"

namespace mero::data {

/// @param content the whole file
/// @param name    of the table, in any case of its letters
/// @throws jet::Failure when it cannot be read as a whole
[[nodiscard]] StationTable stationTable(std::span<const std::uint8_t> content, const std::string& name);

}  // namespace mero::data
