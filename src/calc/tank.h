// SPDX-License-Identifier: MIT
/// Infiltration tank: an open basin with sloped sides, designed for an assumed infiltration rate.
/// Compares the required storage with the volume of the shape, then checks the assumed rate.
#pragma once

#include "calc/per_rain.h"
#include "platform/numbers/checked.h"

namespace mero::calc::tank {

/// Infiltration flow assumed by the design: a specific intensity over the reduced area [m3/s].
/// @param specific_intensity_l_s_ha specific infiltration intensity [l/(s.ha)]
/// @throws RuntimeError Overflow
[[nodiscard]] inline float infiltrationFlow(float specific_intensity_l_s_ha, float reduced_area_m2) {
    const double specific_intensity = specific_intensity_l_s_ha;
    const double area = reduced_area_m2;
    return numbers::toSingle(kRatePerIntensity * specific_intensity * area);
}

/// Inputs of the water balance of a tank.
struct Balance {
    float reduced_area_m2;         ///< reduced drained area [m2]
    float infiltration_flow_m3_s;  ///< assumed infiltration flow as stored [m3/s]
    float safety_factor;           ///< multiplies the duration [-]
};

/// Storage for each rain [m3]: inflow less the assumed infiltration flow, over the duration times the safety
/// factor. All nine rows are used, also those with a negative duration.
[[nodiscard]] inline auto storagePerRain(const Balance& balance) {
    const double reduced_area = balance.reduced_area_m2;
    const double infiltration_flow = balance.infiltration_flow_m3_s;
    const double safety_factor = balance.safety_factor;

    const double collected = kRatePerIntensity * reduced_area;
    return perRain<Rows::All>([=](const Rain& rain) {
        const double intensity = rain.intensity_l_s_ha;
        const double duration = rain.duration_min;
        return (collected * intensity - infiltration_flow) * duration * kSecondsPerMinute * safety_factor;
    });
}

/// Required storage for the critical rain.
/// @return volume [m3] and the critical rain; 0 and none when the assumed flow equals or exceeds every inflow
[[nodiscard]] inline CriticalRain requiredStorage(const Balance& balance, RainTable rains) {
    return storagePerRain(balance).critical(rains);
}

/// Length or width of the top: the bottom and the run of the slope on both sides [m].
/// @param bottom_m bottom length or width [m]
/// @param depth_m  depth of the tank [m]
/// @param slope    horizontal run per unit of height, 0 for vertical sides [-]
/// @throws RuntimeError Overflow
[[nodiscard]] inline float topSide(float bottom_m, float depth_m, float slope) {
    const double bottom = bottom_m;
    const double depth = depth_m;
    const double run = slope;
    return numbers::toSingle(2.0 * depth * run + bottom);
}

/// A tank's shape: rectangular bottom and top, the top sides as stored.
struct Shape {
    float bottom_length_m;
    float bottom_width_m;
    float top_length_m;
    float top_width_m;
    float depth_m;
};

/// Volume of the shape [m3]: frustum of a pyramid, a third of the depth times bottom, top and their
/// geometric mean.
/// @throws RuntimeError InvalidCall when the product of the four sides is negative, Overflow
[[nodiscard]] inline float volume(const Shape& shape) {
    const double bottom_length = shape.bottom_length_m;
    const double bottom_width = shape.bottom_width_m;
    const double top_length = shape.top_length_m;
    const double top_width = shape.top_width_m;
    const double depth = shape.depth_m;
    const double mean = numbers::squareRoot(top_length * bottom_length * bottom_width * top_width);
    return numbers::toSingle(depth / 3.0 * (top_length * top_width + bottom_length * bottom_width + mean));
}

enum class VolumeVerdict { Sufficient, TooSmall };

/// The tank must hold the required storage; an equal volume is sufficient.
[[nodiscard]] constexpr VolumeVerdict judgeVolume(float tank_volume_m3, float required_storage_m3) {
    return tank_volume_m3 < required_storage_m3 ? VolumeVerdict::TooSmall : VolumeVerdict::Sufficient;
}

/// Effective filtration coefficient [m/s]: the full coefficient when the water is settled before the tank,
/// else a fifth of it, because the bottom clogs.
[[nodiscard]] constexpr double effectiveFiltration(float filtration_m_s, bool settled_before) {
    constexpr double kCloggedShare = 5.0;
    const double filtration = filtration_m_s;
    return settled_before ? filtration : filtration / kCloggedShare;
}

/// Mean infiltration flow between the empty tank (bottom area) and the full one (top area), at half the
/// effective coefficient [m3/s].
/// @param effective_filtration_m_s result of effectiveFiltration()
[[nodiscard]] inline double meanInfiltrationFlow(const Shape& shape, double effective_filtration_m_s) {
    const double bottom_length = shape.bottom_length_m;
    const double bottom_width = shape.bottom_width_m;
    const double top_length = shape.top_length_m;
    const double top_width = shape.top_width_m;
    const double bottom_flow = bottom_width * bottom_length * effective_filtration_m_s / 2.0;
    const double top_flow = top_width * top_length * effective_filtration_m_s / 2.0;
    return (bottom_flow + top_flow) / 2.0;
}

enum class InfiltrationVerdict { Proven, Exceeded };

/// The mean flow must reach the assumed one; an equal flow is sufficient.
[[nodiscard]] constexpr InfiltrationVerdict judgeInfiltration(double mean_flow_m3_s,
                                                              float assumed_flow_m3_s) {
    return mean_flow_m3_s >= static_cast<double>(assumed_flow_m3_s) ? InfiltrationVerdict::Proven
                                                                    : InfiltrationVerdict::Exceeded;
}

}  // namespace mero::calc::tank
