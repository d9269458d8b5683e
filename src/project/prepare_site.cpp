// SPDX-License-Identifier: MIT
/// What the dialogs of area and rain make of their entries.
/// The limits of a project file's numbers keep the reduced area within a Single.
#include "project/prepare_site.h"

#include <cstddef>

#include "calc/drained_area.h"

namespace mero::project {

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
    if (rain.picks_row) {
        for (std::size_t k = 0; k < site.rains.size() && site.picked_row < 0; ++k) {
            if (site.rains[k].duration_min == rain.design_duration_min) {
                site.picked_row = static_cast<int>(k);
            }
        }
    }
    site.rain_confirmation = design::confirmRain(site.rains);
    site.filtration_m_s = inputs.filtration_m_s;
    site.groundwater_depth_m = inputs.groundwater_depth_m;
    return site;
}

}  // namespace mero::project
