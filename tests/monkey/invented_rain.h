// SPDX-License-Identifier: MIT
/// A rain database that depends only on the station's number: most stations have a plausible table, some an
/// odd one, and one in 31 has none, which ends the program.
#pragma once

#include "data/rain_database.h"

namespace mero::monkey {

class InventedRain : public data::RainDatabase {
  public:
    /// True when the station has a table.
    [[nodiscard]] static bool has(std::int16_t station_number);
    [[nodiscard]] data::StationTable read(std::int16_t station_number, const std::string& path) override;
};

}  // namespace mero::monkey
