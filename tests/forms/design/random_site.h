// SPDX-License-Identifier: MIT
/// Random sites for the comparison of whole designs: mostly sensible, now and then 0, negative or absurd.
/// A site holds what a user types; the numbers are Singles whose general text is typed.
#pragma once

#include <array>
#include <ostream>

#include "calc/rain.h"

namespace mero::forms::test {

/// Everything that any of the six types reads.
struct RandomSite {
    float area_m2 = 0;
    float filtration_m_s = 0;
    float safety_factor = 0;
    std::array<calc::Rain, calc::kRainRows> rains{};
    int picked_row = 0;  ///< 1 to 9, 0: none

    int soil_option = 0;
    float swale_filtration_m_s = 0;
    float porosity = 0;
    float trench_width_m = 0;
    float trench_height_m = 0;
    bool has_drain = false;
    float inner_pipe_mm = 0;
    float outer_pipe_mm = 0;
    float pipe_count = 0;
    float throttled_l_s_ha = 0;
    float openings_cm2_m = 0;
    float velocity_m_s = 0;

    bool rectangular = false;
    bool type_b = false;
    float first_side_m = 0;  ///< inner diameter of a round shaft
    float second_side_m = 0;
    float wall_m = 0;
    int shafts = 1;
    float groundwater_m = 0;
    float inlet_depth_m = 0;
    float filter_m = 0;
    float sand_m = 0;
    float seepage_path_m = 0;

    float specific_intensity_l_s_ha = 0;
    float tank_length_m = 0;
    float tank_width_m = 0;
    float tank_depth_m = 0;
    float tank_slope = 0;
    bool settled = false;
};

/// Draws a site; called within a property.
RandomSite randomSite();

std::ostream& operator<<(std::ostream& out, const RandomSite& site);

}  // namespace mero::forms::test
