// SPDX-License-Identifier: MIT
/// Rain that depends on nothing but the station's number: most stations have a plausible table, some an odd
/// one, and one in 31 has none, which ends the program.
#pragma once

#include "data/rain_database.h"

namespace mero::monkey {

class InventedRain : public data::RainDatabase {
  public:
    /// Whether the station has a table.
    [[nodiscard]] static bool has(std::int16_t station_number);
    [[nodiscard]] data::StationTable read(std::int16_t station_number, const std::string& path) override;
};

}  // namespace mero::monkey
