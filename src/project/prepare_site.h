// SPDX-License-Identifier: MIT
/// From a project's inputs, and the rain of the stations, to the site that a design starts from.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "data/rain_database.h"
#include "design/site.h"
#include "design/station_rain.h"
#include "project/project.h"

namespace mero::project {

/// The rain of the stations that a design or a sweep needs, read once beforehand. After that it only answers,
/// so all threads ask it.
class RainStore {
  public:
    /// Reads the station at that position of the list (1 to 92) unless it was read before.
    /// @throws RuntimeError when the database cannot be read
    void load(int station, data::RainDatabase& database, const std::string& folder);

    /// The rain of a station that was loaded.
    [[nodiscard]] const design::StationRain& rain(int station) const {
        return *stations_[static_cast<std::size_t>(station)];
    }

  private:
    std::array<std::optional<design::StationRain>, data::kStationCount + 1> stations_;
};

/// The reduced area, the nine rains and the picked row. Nothing is allocated.
/// @param store holds the station of the inputs, if they name one
[[nodiscard]] design::Site prepareSite(const Inputs& inputs, const RainStore& store);

}  // namespace mero::project
