// SPDX-License-Identifier: MIT
/// The design rain table and the picked rain, between the shared values and the formulas.
#pragma once

#include <array>

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

}  // namespace mero::forms
