// SPDX-License-Identifier: MIT
/// What a user enters about one facility: the fields of the six panels as plain numbers.
/// The fields of all types stand side by side, so that a sweep can change the type and keep the rest.
#pragma once

#include <array>
#include <cstdint>

namespace mero::design {

/// The infiltration types; the number is the position in the window's list of types.
enum class FacilityType : std::uint8_t {
    Surface = 1,
    Swale = 2,
    SwaleTrench = 3,
    Trench = 4,
    Shaft = 5,
    Tank = 6,
};

inline constexpr std::array<FacilityType, 6> kFacilityTypes{
    FacilityType::Surface, FacilityType::Swale, FacilityType::SwaleTrench,
    FacilityType::Trench,  FacilityType::Shaft, FacilityType::Tank,
};

/// Pipes in the fill of a trench: the sub-panel of the overflow (combined object) or of the drain (trench).
struct Pipes {
    bool given = false;  ///< the check box of the page is ticked and its sub-panel filled in
    float count = 1.0F;
    float outer_diameter_mm = 0.0F;
    float inner_diameter_mm = 0.0F;
};

/// Shapes of a shaft, by the position of their option.
enum class ShaftShape : std::uint8_t { Round = 0, Rectangular = 1 };

/// The inputs of all panels. The defaults are those that the window opens with.
struct Facility {
    FacilityType type = FacilityType::Surface;
    float safety_factor = 1.2F;

    // Swale, and the swale of the combined object.
    int soil_option = 0;  ///< 0 medium to fine sand, 1 silt and sand
    float swale_filtration_m_s = 0.0F;

    // Trench, and the trench of the combined object.
    float fill_porosity = 0.35F;
    float trench_width_m = 0.0F;
    float trench_height_m = 0.0F;

    Pipes overflow;  ///< combined object
    float throttled_outflow_l_s_ha = 0.0F;

    Pipes drain;  ///< trench
    float outlet_area_cm2_m = 0.0F;
    float outlet_velocity_m_s = 0.0F;

    // Shaft. A ring of the catalogue replaces shape and dimensions.
    int catalogue_row = -1;  ///< rows of the round catalogue, then of the rectangular one; -1: typed in
    ShaftShape shape = ShaftShape::Round;
    bool sand_layer = false;  ///< variant "typ B"
    std::int16_t shaft_count = 1;
    float inner_diameter_m = 0.0F;  ///< of a round shaft
    float inner_width_m = 0.0F;     ///< of a rectangular shaft
    float inner_length_m = 0.0F;    ///< of a rectangular shaft
    float wall_thickness_m = 0.0F;
    float seepage_path_m = 1.5F;
    float inlet_depth_m = 0.0F;
    float filter_layer_m = 0.0F;
    float sand_layer_m = 0.0F;

    // Tank.
    float specific_infiltration_l_s_ha = 0.0F;
    float bottom_length_m = 0.0F;
    float bottom_width_m = 0.0F;
    float tank_depth_m = 0.0F;
    float side_slope = 0.0F;
    bool upstream_settling = false;
};

}  // namespace mero::design
