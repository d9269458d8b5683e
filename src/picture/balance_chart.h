// SPDX-License-Identifier: MIT
/// The storage balance over the nine rains: what each of them asks of the facility, the critical one marked.
#pragma once

#include <string>

#include "calc/shaft.h"
#include "calc/swale.h"
#include "calc/swale_trench.h"
#include "calc/tank.h"
#include "calc/trench.h"
#include "picture/chart.h"

namespace mero::picture {

/// What stands behind the surface's area: it is in balance with the picked rain, there is no search.
struct SurfaceBalance {
    float reduced_area_m2 = 0;
    float filtration_m_s = 0;
    calc::Rain picked_rain;
};

/// @param shown_result the result's field, empty before the calculation; a balance that no longer gives it
///        says that the inputs have changed since
[[nodiscard]] Chart surfaceChart(const SurfaceBalance& balance, calc::RainTable rains,
                                 const std::string& shown_result);
[[nodiscard]] Chart swaleChart(const calc::swale::Balance& balance, calc::RainTable rains,
                               const std::string& shown_result);
/// The two searches of the combined object, in their order.
struct SwaleTrenchBalance {
    calc::swale::Balance swale;
    calc::swale_trench::Balance trench;
};
/// The trench's length; where no rain asks for one, the swale's volume, whose rain is then the critical one.
[[nodiscard]] Chart swaleTrenchChart(const SwaleTrenchBalance& balance, calc::RainTable rains,
                                     const std::string& shown_volume, const std::string& shown_length);
[[nodiscard]] Chart trenchChart(const calc::trench::Balance& balance, calc::RainTable rains,
                                const std::string& shown_length);
[[nodiscard]] Chart shaftChart(const calc::shaft::Balance& balance, calc::RainTable rains,
                               const std::string& shown_level);
[[nodiscard]] Chart tankChart(const calc::tank::Balance& balance, calc::RainTable rains,
                              const std::string& shown_volume);

}  // namespace mero::picture
