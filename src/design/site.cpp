// SPDX-License-Identifier: MIT
/// The rain dialog's confirmation.
/// Its running total is a 16-bit Integer, so intensities below 0.5 never add up.
#include "design/site.h"

#include <cmath>
#include <limits>

namespace mero::design {

RainConfirmation confirmRain(std::span<const calc::Rain, calc::kRainRows> rains) {
    double sum = 0.0;
    for (const calc::Rain& rain : rains) {
        sum = std::nearbyint(sum + static_cast<double>(rain.intensity_l_s_ha));
        if (!(sum >= std::numeric_limits<std::int16_t>::min() &&
              sum <= std::numeric_limits<std::int16_t>::max())) {
            return RainConfirmation::Overflow;
        }
    }
    return sum == 0.0 ? RainConfirmation::NoIntensities : RainConfirmation::Accepted;
}

}  // namespace mero::design
