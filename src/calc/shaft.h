// SPDX-License-Identifier: MIT
/// Infiltration shaft: water rises in the shaft and soaks away through its filter.
/// The steps of the design in order; between them the fields round the values and store them back.
#pragma once

#include <cmath>
#include <cstdint>

#include "calc/per_rain.h"
#include "platform/numbers/checked.h"

namespace mero::calc::shaft {

/// The shafts of a site for the calculation: round and all alike.
struct Shafts {
    std::int16_t count;  ///< number of shafts [-]
    float outer_diameter_m;
    float inner_diameter_m;
};

/// The diameter of the single shaft that replaces all of them [m].
[[nodiscard]] inline double joinedDiameter(std::int16_t count, float diameter_m) {
    return static_cast<double>(count) * static_cast<double>(diameter_m);
}

/// Inputs of the water balance of the shafts.
struct Balance {
    float reduced_area_m2;  ///< reduced drained area [m2]
    float filtration_m_s;   ///< filtration coefficient of the subsoil [m/s]
    float safety_factor;    ///< multiplies the duration [-]
    Shafts shafts;
};

/// Rise of the water in the shafts for each rain [m]: inflow less the infiltration through the outer
/// cross-section at half the saturated conductivity, divided by the uptake per metre of rise (the inner
/// cross-section filled over the time of the balance, and the wetted wall). The diameter is multiplied by the
/// number of shafts before it is squared, so n shafts act as one of n times the diameter. Rows without a
/// positive duration are skipped.
/// @throws RuntimeError (from the formula) DivisionByZero when the safety factor or the uptake is 0, Overflow
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

/// Rise of the water in the shafts for the critical rain.
/// @return rise [m] and the critical rain; 0 and none when the soil takes every rain as it falls
/// @throws RuntimeError as levelPerRain()
[[nodiscard]] inline CriticalRain waterLevel(const Balance& balance, RainTable rains) {
    return levelPerRain(balance).critical(rains);
}

/// Infiltration area: the outer cross-section and a share of the wetted wall [m2]. The share of the wall is
/// pi * h / 2, without a diameter; results and reports depend on this formula.
/// @throws RuntimeError Overflow
[[nodiscard]] inline float infiltrationArea(const Shafts& shafts, float water_level_m) {
    const double outer = joinedDiameter(shafts.count, shafts.outer_diameter_m);
    const double level = water_level_m;
    return numbers::toSingle(kPi * (outer * outer) / 4.0 + kPi * level / 2.0);
}

/// The heights of a shaft's parts, from the ground down.
struct Layers {
    float inlet_depth_m;   ///< frost-free depth of the inlet
    float filter_layer_m;  ///< height of the filter layer
    float sand_layer_m;    ///< height of the sand or fine gravel layer
    bool has_sand_layer;   ///< without it the sand layer's height is ignored
};

/// Depth of the shaft below the ground: inlet, water, filter and the sand layer, if any [m].
/// @throws RuntimeError Overflow
[[nodiscard]] inline float depth(float water_level_m, const Layers& layers) {
    const double inlet = layers.inlet_depth_m;
    const double level = water_level_m;
    const double filter = layers.filter_layer_m;
    const double sand = layers.has_sand_layer ? static_cast<double>(layers.sand_layer_m) : 0.0;
    return numbers::toSingle(inlet + level + filter + sand);
}

/// Minimum depth of the groundwater for the shaft: inlet, water and minimum seepage path [m].
/// @throws RuntimeError Overflow
[[nodiscard]] inline float requiredEmbedding(float inlet_depth_m, float water_level_m, float seepage_path_m) {
    const double inlet = inlet_depth_m;
    const double level = water_level_m;
    const double seepage_path = seepage_path_m;
    return numbers::toSingle(inlet + level + seepage_path);
}

/// Storage volume for the picked rain. The duration is in minutes, without the factor 60 of the other
/// facilities; results and reports depend on this formula. The infiltration area is the one stored by its
/// field.
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

/// Permeability that the filter needs to pass the flow into the subsoil: the ratio of the outer surfaces
/// (bottom and wall up to the water level) to the inner cross-section, times the coefficient of the subsoil
/// [m/s]. Its field stores it back with two significant digits.
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

/// The groundwater must be at least as deep as the shaft requires. A level of 0 means not given and passes;
/// its sign is ignored.
[[nodiscard]] inline GroundwaterVerdict judgeGroundwater(float groundwater_depth_m,
                                                         float required_embedding_m) {
    const bool given = groundwater_depth_m != 0.0F;
    return given && std::fabs(groundwater_depth_m) < required_embedding_m ? GroundwaterVerdict::TooHigh
                                                                          : GroundwaterVerdict::DeepEnough;
}

/// What the bottom of a shaft stays above the required embedding depth [m].
inline constexpr double kBottomClearance = 0.5;

enum class BottomVerdict { FarEnough, TooClose };

/// The bottom of the shaft must stay half a metre above the required embedding depth (not above the
/// groundwater of the site); exactly half a metre is enough.
[[nodiscard]] constexpr BottomVerdict judgeBottom(float depth_m, float required_embedding_m) {
    return static_cast<double>(depth_m) + kBottomClearance > static_cast<double>(required_embedding_m)
               ? BottomVerdict::TooClose
               : BottomVerdict::FarEnough;
}

/// The most permeable filter that can be built [m/s].
inline constexpr float kMostPermeableFilter = 0.001F;

enum class FilterVerdict { Sufficient, TooPermeable };

/// A filter up to 10^-3 m/s (in Single precision, the limit included) can be built.
[[nodiscard]] constexpr FilterVerdict judgeFilter(float required_permeability_m_s) {
    return required_permeability_m_s <= kMostPermeableFilter ? FilterVerdict::Sufficient
                                                             : FilterVerdict::TooPermeable;
}

}  // namespace mero::calc::shaft
