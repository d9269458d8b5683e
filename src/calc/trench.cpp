/// Infiltration trench.
/// Balance per metre of trench, see the header.
#include "calc/trench.h"

#include "platform/numbers/checked.h"

namespace mero::calc::trench {

CriticalRain requiredLength(const Balance& balance, RainTable rains) {
    const double reduced_area = balance.reduced_area_m2;
    const double safety_factor = balance.safety_factor;
    const TrenchSection section = balance.section;

    const double collected = kRatePerIntensity * reduced_area;
    return findCriticalRain<Rows::PositiveDuration>(rains, [=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double seconds = balanceSeconds(rain, safety_factor);
        return numbers::divide(collected * intensity, uptakePerMetre(section, seconds));
    });
}

float storageVolume(const Balance& balance, float length_m, const Rain& picked_rain) {
    const double reduced_area = balance.reduced_area_m2;
    const double safety_factor = balance.safety_factor;
    const double filtration = balance.section.filtration_m_s;
    const double length = length_m;
    const double intensity = picked_rain.intensity_l_s_ha;
    const double duration = picked_rain.duration_min;

    const double inflow_m3_s = kRatePerIntensity * reduced_area * intensity;
    const double soaked_m3_s =
        infiltrationWidth(balance.section.width_m, balance.section.height_m) * length * filtration / 2.0;
    return numbers::toSingle((inflow_m3_s - soaked_m3_s) * duration * kSecondsPerMinute * safety_factor);
}

float infiltrationArea(float height_m, float width_m, float length_m) {
    const double length = length_m;
    return numbers::toSingle(infiltrationWidth(width_m, height_m) * length);
}

float drainOutflow(const DrainOutlet& outlet, float length_m) {
    const double openings = outlet.openings_cm2_m;
    const double pipe_count = outlet.pipe_count;
    const double velocity = outlet.velocity_m_s;
    const double length = length_m;
    return numbers::toSingle(openings / kSquareCentimetresPerSquareMetre * pipe_count * velocity * length *
                             kLitresPerCubicMetre);
}

}  // namespace mero::calc::trench
