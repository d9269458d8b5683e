// SPDX-License-Identifier: MIT
/// What the dialogs of area and rain make of their entries.
/// The limits of a project file's numbers keep the reduced area within a Single.
#include "project/prepare_site.h"

#include <algorithm>
#include <cstddef>

#include "calc/drained_area.h"

namespace mero::project {

void RainStore::load(int station, data::RainDatabase& database, const std::string& folder) {
    auto& slot = stations_[static_cast<std::size_t>(station)];
    if (!slot) {
        slot = design::stationRain(database.read(reference().StaniceCislo(station), folder + "/mero.mdb"));
    }
}

design::Site prepareSite(const Inputs& inputs, const RainStore& store) {
    design::Site site;
    site.has_areas = !inputs.areas.empty();
    for (const PartialArea& area : inputs.areas) {
        site.reduced_area_m2 =
            calc::addPartialArea(site.reduced_area_m2, area.runoff_coefficient, area.area_m2);
    }
    const RainChoice& rain = inputs.rain;
    const auto& intensities =
        rain.station > 0
            ? store.rain(rain.station).intensities_l_s_ha[static_cast<std::size_t>(rain.periodicity)]
            : rain.intensities_l_s_ha;
    for (std::size_t k = 0; k < site.rains.size(); ++k) {
        site.rains[k] = {.duration_min = rain.durations_min[k], .intensity_l_s_ha = intensities[k]};
    }
    const auto picked = std::ranges::find(rain.durations_min, rain.design_duration_min);
    if (rain.picks_row && picked != rain.durations_min.end()) {
        site.picked_row = static_cast<int>(picked - rain.durations_min.begin());
    }
    site.rain_confirmation = design::confirmRain(site.rains);
    site.filtration_m_s = inputs.filtration_m_s;
    site.groundwater_depth_m = inputs.groundwater_depth_m;
    return site;
}

}  // namespace mero::project
