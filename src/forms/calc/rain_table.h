// SPDX-License-Identifier: MIT
/// The design rain table and the picked rain, between the shared values and the formulas.
#pragma once

#include <array>

#include "calc/critical_rain.h"
#include "calc/rain.h"
#include "data/mod_public_variables.h"

namespace mero::forms {

/// The nine rows of the shared rain table, durations paired with intensities.
[[nodiscard]] inline std::array<calc::Rain, calc::kRainRows> rainTable(
    const data::modPublicVariables& values) {
    std::array<calc::Rain, calc::kRainRows> rows;
    for (std::size_t k = 0; k < rows.size(); ++k) {
        rows[k] = {values.DobaTrvani[k], values.IntenzitaDeste[k]};
    }
    return rows;
}

[[nodiscard]] inline calc::Rain pickedRain(const data::modPublicVariables& values) {
    return {values.VybranaDoba, values.VybranaIntenzita};
}

/// The critical rain becomes the picked rain; without one the picked rain stays as it is.
inline void pick(data::modPublicVariables& values, const calc::CriticalRain& critical) {
    if (critical.rain) {
        values.VybranaDoba = critical.rain->duration_min;
        values.VybranaIntenzita = critical.rain->intensity_l_s_ha;
    }
}

}  // namespace mero::forms
