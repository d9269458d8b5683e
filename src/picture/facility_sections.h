// SPDX-License-Identifier: MIT
/// Makes sections of the six facilities from their values.
/// All values are accepted; those that cannot be drawn give a hint.
#pragma once

#include <optional>

#include "picture/section.h"

namespace mero::picture {

/// Values of surface infiltration.
struct SurfaceValues {
    std::optional<float> area_m2 = std::nullopt;  ///< empty before the calculation
    float groundwater_depth_m = 0;                ///< 0: not given; the sign is ignored
};
[[nodiscard]] Section surfaceSection(const SurfaceValues& values);

struct SwaleValues {
    std::optional<float> area_m2 = std::nullopt;
    std::optional<float> ponding_m = std::nullopt;
    float groundwater_depth_m = 0;
};
[[nodiscard]] Section swaleSection(const SwaleValues& values);

/// Pipes in the fill of a trench; `count` 0 for none.
struct PipeValues {
    float count = 0;
    float outer_diameter_mm = 0;
    float inner_diameter_mm = 0;
};

struct TrenchValues {
    std::optional<float> length_m = std::nullopt;
    float width_m = 0;
    float height_m = 0;
    PipeValues pipes = {};
    float groundwater_depth_m = 0;
};
[[nodiscard]] Section trenchSection(const TrenchValues& values);

/// A trench under a swale of the same width.
struct SwaleTrenchValues {
    TrenchValues trench = {};
    std::optional<float> swale_depth_m = std::nullopt;
};
[[nodiscard]] Section swaleTrenchSection(const SwaleTrenchValues& values);

struct ShaftValues {
    int count = 1;
    bool rectangular = false;
    float inner_width_m = 0;   ///< inner diameter, or the first inner side
    float inner_length_m = 0;  ///< second inner side; rectangular shafts only
    float wall_m = 0;
    float inlet_depth_m = 0;
    float filter_layer_m = 0;
    float sand_layer_m = 0;  ///< 0 for none
    std::optional<float> water_level_m = std::nullopt;
    std::optional<float> depth_m = std::nullopt;
    std::optional<float> required_embedding_m = std::nullopt;
    float groundwater_depth_m = 0;
};
[[nodiscard]] Section shaftSection(const ShaftValues& values);

struct TankValues {
    float bottom_length_m = 0;
    float bottom_width_m = 0;
    float depth_m = 0;
    float slope = 0;  ///< n of the slope 1 : n
    std::optional<float> required_storage_m3 = std::nullopt;
    std::optional<float> volume_m3 = std::nullopt;
    float groundwater_depth_m = 0;
};
[[nodiscard]] Section tankSection(const TankValues& values);

}  // namespace mero::picture
