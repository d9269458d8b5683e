/// Swale design.
/// Water balance of the stored rain, see the header.
#include "calc/swale.h"

#include "platform/numbers/checked.h"

namespace mero::calc::swale {

float startingArea(float reduced_area_m2, int soil_option, float previous_area_m2) {
    const double area = reduced_area_m2;
    switch (soil_option) {
        case 0:
            return numbers::toSingle(0.1 * area);
        case 1:
            return numbers::toSingle(0.2 * area);
        default:
            return previous_area_m2;
    }
}

CriticalRain storageVolume(const Balance& balance, RainTable rains) {
    const double reduced_area = balance.reduced_area_m2;
    const double infiltration_area = balance.infiltration_area_m2;
    const double filtration = balance.filtration_m_s;
    const double safety_factor = balance.safety_factor;

    const double collected = (reduced_area + infiltration_area) * kRatePerIntensity;
    const double soaked_m3_s = infiltration_area * filtration / 2.0;
    return findCriticalRain<Rows::All>(rains, [=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double duration = rain.duration_min;
        return (collected * intensity - soaked_m3_s) * duration * kSecondsPerMinute * safety_factor;
    });
}

float pondingDepth(float volume_m3, float infiltration_area_m2) {
    return numbers::toSingle(numbers::divide(volume_m3, infiltration_area_m2));
}

float emptyingTimeHours(float depth_m, float filtration_m_s) {
    const double depth = depth_m;
    return numbers::toSingle(numbers::divide(2.0 * depth, filtration_m_s) / kSecondsPerHour);
}

}  // namespace mero::calc::swale
