// SPDX-License-Identifier: MIT
/// What the painters' tests draw, on screen and as SVG.
#pragma once

#include <array>

#include "picture/facility_sections.h"
#include "picture/rain_curve.h"

namespace mero::picture {

inline constexpr std::array<calc::Rain, calc::kRainRows> kSampleRains{
    {{5, 434}, {10, 320}, {15, 253}, {20, 210}, {30, 156}, {45, 113}, {60, 88}, {90, 61}, {120, 47}}};

inline Section sampleShaft() {
    return shaftSection({.inner_width_m = 1.5F,
                         .wall_m = 0.15F,
                         .inlet_depth_m = 1.2F,
                         .filter_layer_m = 0.5F,
                         .sand_layer_m = 0.3F,
                         .water_level_m = 1.91F,
                         .depth_m = 3.91F,
                         .required_embedding_m = 4.61F,
                         .groundwater_depth_m = 5});
}

}  // namespace mero::picture
