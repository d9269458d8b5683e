// SPDX-License-Identifier: MIT
/// The rain dialog's confirmation.
/// Its running total is a 16-bit Integer, so intensities below 0.5 never add up.
#include "design/site.h"

#include "platform/numbers/checked.h"

namespace mero::design {

RainConfirmation confirmRain(calc::RainTable rains) {
    std::int16_t sum = 0;
    try {
        for (const calc::Rain& rain : rains) {
            sum = numbers::toInteger(static_cast<double>(sum) + static_cast<double>(rain.intensity_l_s_ha));
        }
    } catch (const RuntimeError&) {
        return RainConfirmation::Overflow;
    }
    return sum == 0 ? RainConfirmation::NoIntensities : RainConfirmation::Accepted;
}

}  // namespace mero::design
