/// Combined object of swale and trench.
/// Balance of the trench under the swale, see the header.
#include "calc/swale_trench.h"

#include "platform/numbers/checked.h"

namespace mero::calc::swale_trench {

CriticalRain trenchLength(const Balance& balance, RainTable rains) {
    const double reduced_area = balance.reduced_area_m2;
    const double infiltration_area = balance.infiltration_area_m2;
    const double throttled = balance.throttled_m3_s;
    const double swale_volume = balance.swale_volume_m3;
    const double safety_factor = balance.safety_factor;
    const TrenchSection trench = balance.trench;

    const double collected = (reduced_area + infiltration_area) * kRatePerIntensity;
    return findCriticalRain<Rows::PositiveDuration>(rains, [=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double seconds = balanceSeconds(rain, safety_factor);
        const double to_trench_m3_s =
            collected * intensity - throttled - numbers::divide(swale_volume, seconds);
        return numbers::divide(to_trench_m3_s, uptakePerMetre(trench, seconds));
    });
}

float swaleDepth(float swale_volume_m3, float trench_length_m, float swale_width_m) {
    return numbers::toSingle(numbers::divide(swale_volume_m3, designedArea(trench_length_m, swale_width_m)));
}

}  // namespace mero::calc::swale_trench
