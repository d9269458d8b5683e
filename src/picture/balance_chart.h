// SPDX-License-Identifier: MIT
/// Makes charts of the balance over the nine rains: what each rain requires of the facility.
/// The critical rain is marked.
#pragma once

#include <string>

#include "calc/shaft.h"
#include "calc/swale.h"
#include "calc/swale_trench.h"
#include "calc/tank.h"
#include "calc/trench.h"
#include "picture/chart.h"

namespace mero::picture {

/// Inputs of the area of surface infiltration, which follows from the picked rain without a search.
struct SurfaceBalance {
    float reduced_area_m2 = 0;
    float filtration_m_s = 0;
    calc::Rain picked_rain;
};

/// @param shown_result text of the result's field, empty before the calculation; when the balance gives
///        another result, the chart notes that the inputs have changed
[[nodiscard]] Chart surfaceChart(const SurfaceBalance& balance, calc::RainTable rains,
                                 const std::string& shown_result);
[[nodiscard]] Chart swaleChart(const calc::swale::Balance& balance, calc::RainTable rains,
                               const std::string& shown_result);
/// Inputs of the two searches of the combined object, in order.
struct SwaleTrenchBalance {
    calc::swale::Balance swale;
    calc::swale_trench::Balance trench;
};
/// The trench's length; when no rain requires a trench, the swale's volume.
[[nodiscard]] Chart swaleTrenchChart(const SwaleTrenchBalance& balance, calc::RainTable rains,
                                     const std::string& shown_volume, const std::string& shown_length);
[[nodiscard]] Chart trenchChart(const calc::trench::Balance& balance, calc::RainTable rains,
                                const std::string& shown_length);
[[nodiscard]] Chart shaftChart(const calc::shaft::Balance& balance, calc::RainTable rains,
                               const std::string& shown_level);
[[nodiscard]] Chart tankChart(const calc::tank::Balance& balance, calc::RainTable rains,
                              const std::string& shown_volume);

}  // namespace mero::picture
