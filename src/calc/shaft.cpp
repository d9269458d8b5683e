/// Infiltration shaft.
/// Water balance and layers of a shaft, see the header.
#include "calc/shaft.h"

#include "platform/numbers/checked.h"

namespace mero::calc::shaft {
namespace {

/// The diameter of the one shaft that stands for all of them [m].
double joinedDiameter(std::int16_t count, float diameter_m) {
    return static_cast<double>(count) * static_cast<double>(diameter_m);
}

}  // namespace

CriticalRain waterLevel(const Balance& balance, RainTable rains) {
    const double reduced_area = balance.reduced_area_m2;
    const double filtration = balance.filtration_m_s;
    const double safety_factor = balance.safety_factor;
    const double outer = joinedDiameter(balance.shafts.count, balance.shafts.outer_diameter_m);
    const double inner = joinedDiameter(balance.shafts.count, balance.shafts.inner_diameter_m);

    const double collected = kRatePerIntensity * reduced_area;
    const double soaked_m3_s = kPi * (outer * outer) / 4.0 * (filtration / 2.0);
    const double four_sections_m2 = kPi * (inner * inner);
    const double soaked_by_wall_m2_s = outer * kPi * filtration / 4.0;
    return findCriticalRain<Rows::PositiveDuration>(rains, [=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double duration = rain.duration_min;
        const double surplus_m3_s = collected * intensity - soaked_m3_s;
        const double quadruple_seconds = duration * 4.0 * kSecondsPerMinute * safety_factor;
        const double per_metre_m2_s =
            numbers::divide(four_sections_m2, quadruple_seconds) + soaked_by_wall_m2_s;
        return numbers::divide(surplus_m3_s, per_metre_m2_s);
    });
}

float infiltrationArea(const Shafts& shafts, float water_level_m) {
    const double outer = joinedDiameter(shafts.count, shafts.outer_diameter_m);
    const double level = water_level_m;
    return numbers::toSingle(kPi * (outer * outer) / 4.0 + kPi * level / 2.0);
}

float depth(float water_level_m, const Layers& layers) {
    const double inlet = layers.inlet_depth_m;
    const double level = water_level_m;
    const double filter = layers.filter_layer_m;
    const double sand = layers.has_sand_layer ? static_cast<double>(layers.sand_layer_m) : 0.0;
    return numbers::toSingle(inlet + level + filter + sand);
}

float requiredEmbedding(float inlet_depth_m, float water_level_m, float seepage_path_m) {
    const double inlet = inlet_depth_m;
    const double level = water_level_m;
    const double seepage_path = seepage_path_m;
    return numbers::toSingle(inlet + level + seepage_path);
}

float storageVolume(const Balance& balance, float infiltration_area_m2, const Rain& picked_rain) {
    const double reduced_area = balance.reduced_area_m2;
    const double filtration = balance.filtration_m_s;
    const double safety_factor = balance.safety_factor;
    const double infiltration_area = infiltration_area_m2;
    const double intensity = picked_rain.intensity_l_s_ha;
    const double duration = picked_rain.duration_min;

    const double surplus =
        kRatePerIntensity * reduced_area * intensity - filtration * infiltration_area / 2.0;
    return numbers::toSingle(surplus * duration * safety_factor);
}

float requiredFilterPermeability(float water_level_m, const Shafts& shafts, float filtration_m_s) {
    const double level = water_level_m;
    const double outer = shafts.outer_diameter_m;
    const double inner = shafts.inner_diameter_m;
    const double filtration = filtration_m_s;
    const double surface_ratio = numbers::divide(outer * outer + 2.0 * level * outer, inner * inner);
    return numbers::toSingle(surface_ratio * filtration);
}

}  // namespace mero::calc::shaft
