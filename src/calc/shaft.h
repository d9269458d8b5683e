// SPDX-License-Identifier: MIT
/// Infiltration shaft: water rises in the shaft and soaks away through its filter.
/// The steps of the design in their order; between them the fields round what they show and store it back.
#pragma once

#include <cmath>
#include <cstdint>

#include "calc/per_rain.h"
#include "platform/numbers/checked.h"

namespace mero::calc::shaft {

/// The shafts of a site as they are calculated: round, all alike.
struct Shafts {
    std::int16_t count;  ///< number of shafts [-]
    float outer_diameter_m;
    float inner_diameter_m;
};

/// The diameter of the one shaft that stands for all of them [m].
[[nodiscard]] inline double joinedDiameter(std::int16_t count, float diameter_m) {
    return static_cast<double>(count) * static_cast<double>(diameter_m);
}

/// What the water balance of the shafts depends on.
struct Balance {
    float reduced_area_m2;  ///< reduced drained area [m2]
    float filtration_m_s;   ///< filtration coefficient of the subsoil [m/s]
    float safety_factor;    ///< stretches the duration [-]
    Shafts shafts;
};

/// Rise of the water in the shafts that a rain brings [m]: inflow less what soaks away through the outer
/// cross-section at half the saturated conductivity, divided by what one metre of rise takes (the inner
/// cross-section filled over the time of the balance, and the wetted wall). The program's rule multiplies
/// the diameter by the number of shafts before squaring it, so n shafts act as one of n times the diameter.
/// Rows without a positive duration are left out. Its formula throws RuntimeError DivisionByZero when the
/// safety factor or what one metre of rise takes is 0, Overflow.
[[nodiscard]] inline auto levelPerRain(const Balance& balance) {
    const double reduced_area = balance.reduced_area_m2;
    const double filtration = balance.filtration_m_s;
    const double safety_factor = balance.safety_factor;
    const double outer = joinedDiameter(balance.shafts.count, balance.shafts.outer_diameter_m);
    const double inner = joinedDiameter(balance.shafts.count, balance.shafts.inner_diameter_m);

    const double collected = kRatePerIntensity * reduced_area;
    const double soaked_m3_s = kPi * (outer * outer) / 4.0 * (filtration / 2.0);
    const double four_sections_m2 = kPi * (inner * inner);
    const double soaked_by_wall_m2_s = outer * kPi * filtration / 4.0;
    return perRain<Rows::PositiveDuration>([=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double duration = rain.duration_min;
        const double surplus_m3_s = collected * intensity - soaked_m3_s;
        const double quadruple_seconds = duration * 4.0 * kSecondsPerMinute * safety_factor;
        const double per_metre_m2_s =
            numbers::divide(four_sections_m2, quadruple_seconds) + soaked_by_wall_m2_s;
        return numbers::divide(surplus_m3_s, per_metre_m2_s);
    });
}

/// Rise of the water in the shafts under the critical rain.
/// @return rise [m] and the critical rain; 0 and none when the soil keeps up with every rain
/// @throws RuntimeError as levelPerRain()
[[nodiscard]] inline CriticalRain waterLevel(const Balance& balance, RainTable rains) {
    return levelPerRain(balance).critical(rains);
}

/// Infiltration area: the outer cross-section and a share of the wetted wall [m2]. The program's rule for
/// the wall is pi * h / 2, without a diameter.
/// @throws RuntimeError Overflow
[[nodiscard]] inline float infiltrationArea(const Shafts& shafts, float water_level_m) {
    const double outer = joinedDiameter(shafts.count, shafts.outer_diameter_m);
    const double level = water_level_m;
    return numbers::toSingle(kPi * (outer * outer) / 4.0 + kPi * level / 2.0);
}

/// The heights that make up a shaft, from the ground down.
struct Layers {
    float inlet_depth_m;   ///< frost-free depth of the inlet
    float filter_layer_m;  ///< height of the filter layer
    float sand_layer_m;    ///< height of the sand or fine gravel layer
    bool has_sand_layer;   ///< only then does the sand layer count
};

/// Depth of the shaft below the ground: inlet, water, filter and, if there is one, the sand layer [m].
/// @throws RuntimeError Overflow
[[nodiscard]] inline float depth(float water_level_m, const Layers& layers) {
    const double inlet = layers.inlet_depth_m;
    const double level = water_level_m;
    const double filter = layers.filter_layer_m;
    const double sand = layers.has_sand_layer ? static_cast<double>(layers.sand_layer_m) : 0.0;
    return numbers::toSingle(inlet + level + filter + sand);
}

/// Least depth of the groundwater that the shaft needs: inlet, water and minimum seepage path [m].
/// @throws RuntimeError Overflow
[[nodiscard]] inline float requiredEmbedding(float inlet_depth_m, float water_level_m, float seepage_path_m) {
    const double inlet = inlet_depth_m;
    const double level = water_level_m;
    const double seepage_path = seepage_path_m;
    return numbers::toSingle(inlet + level + seepage_path);
}

/// Storage volume under the picked rain. The program's rule takes the duration in minutes as it stands,
/// without the factor 60 of the other facilities, and the infiltration area as its field stores it.
/// @throws RuntimeError Overflow
[[nodiscard]] inline float storageVolume(const Balance& balance, float infiltration_area_m2,
                                         const Rain& picked_rain) {
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

/// Permeability that the filter needs so that it passes what the subsoil takes: the ratio of the outer
/// surfaces (bottom and wall up to the water level) to the inner cross-section, times the coefficient of
/// the subsoil [m/s]. The field that shows it stores it back with two significant digits.
/// @throws RuntimeError DivisionByZero when the inner diameter is 0, Overflow
[[nodiscard]] inline float requiredFilterPermeability(float water_level_m, const Shafts& shafts,
                                                      float filtration_m_s) {
    const double level = water_level_m;
    const double outer = shafts.outer_diameter_m;
    const double inner = shafts.inner_diameter_m;
    const double filtration = filtration_m_s;
    const double surface_ratio = numbers::divide(outer * outer + 2.0 * level * outer, inner * inner);
    return numbers::toSingle(surface_ratio * filtration);
}

enum class GroundwaterVerdict { DeepEnough, TooHigh };

/// The groundwater must lie at least as deep as the shaft needs. A level of 0 means not given and passes;
/// its sign does not matter.
[[nodiscard]] inline GroundwaterVerdict judgeGroundwater(float groundwater_depth_m,
                                                         float required_embedding_m) {
    const bool given = groundwater_depth_m != 0.0F;
    return given && std::fabs(groundwater_depth_m) < required_embedding_m ? GroundwaterVerdict::TooHigh
                                                                          : GroundwaterVerdict::DeepEnough;
}

enum class BottomVerdict { FarEnough, TooClose };

/// The bottom of the shaft must stay half a metre above the required embedding depth (not above the
/// groundwater of the site); exactly half a metre is enough.
[[nodiscard]] constexpr BottomVerdict judgeBottom(float depth_m, float required_embedding_m) {
    constexpr double kClearance = 0.5;
    return static_cast<double>(depth_m) + kClearance > static_cast<double>(required_embedding_m)
               ? BottomVerdict::TooClose
               : BottomVerdict::FarEnough;
}

enum class FilterVerdict { Sufficient, TooPermeable };

/// A filter up to 10^-3 m/s (in Single precision, the limit included) can be built.
[[nodiscard]] constexpr FilterVerdict judgeFilter(float required_permeability_m_s) {
    constexpr float kLargestPermeability = 0.001F;
    return required_permeability_m_s <= kLargestPermeability ? FilterVerdict::Sufficient
                                                             : FilterVerdict::TooPermeable;
}

}  // namespace mero::calc::shaft
