// SPDX-License-Identifier: MIT
/// Drawing of the sites.
/// Numbers have few digits, as those that people type.
#include "forms/design/random_site.h"

#include <rapidcheck.h>

#include <cmath>

#include "platform/numbers/number_text.h"

namespace mero::forms::test {
namespace {

bool oneIn(int chances) {
    return *rc::gen::inRange(0, chances) == 0;
}

/// `low` to `high` whole steps, each a tenth, a hundredth...
float steps(int low, int high, double per_unit) {
    return static_cast<float>(*rc::gen::inRange(low, high + 1) / per_unit);
}

/// A number as it is, or what a careless user makes of it.
float odd(float value, bool may_be_huge = true) {
    switch (*rc::gen::inRange(0, 60)) {
        case 0:
            return 0.0F;
        case 1:
            return -value;
        case 2:
            return may_be_huge ? value * 1e9F : value;
        default:
            return value;
    }
}

/// Clay to gravel.
float filtration() {
    return static_cast<float>(*rc::gen::inRange(10, 100) * std::pow(10.0, *rc::gen::inRange(-9, -3)));
}

/// A storm whose intensities fall with the duration; some rows are careless.
std::array<calc::Rain, calc::kRainRows> rains() {
    constexpr std::array<int, calc::kRainRows> kDurations_min{5, 10, 15, 20, 30, 45, 60, 90, 120};
    const bool measured = !oneIn(4);
    std::array<calc::Rain, calc::kRainRows> rows;
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const float duration = measured ? static_cast<float>(kDurations_min[k]) : steps(1, 1500, 10);
        const int most = measured ? 40000 / (kDurations_min[k] + 5) : 5000;
        rows[k] = {odd(duration, false), odd(steps(most / 2, most, 10), false)};
    }
    return rows;
}

void drawTrench(RandomSite& site) {
    site.soil_option = *rc::gen::inRange(0, 2);
    // Nothing huge that makes the volume a difference of equals, of which only rounding is left.
    site.swale_filtration_m_s = odd(filtration(), false);
    site.porosity = odd(steps(10, 60, 100), false);
    site.trench_width_m = odd(steps(3, 40, 10), false);
    site.trench_height_m = odd(steps(3, 40, 10), false);
    site.has_drain = oneIn(2);
    site.inner_pipe_mm = odd(steps(10, 50, 0.1), false);
    site.outer_pipe_mm = odd(site.inner_pipe_mm + steps(1, 4, 0.1), false);
    site.pipe_count = odd(steps(1, 3, 1), false);
    site.throttled_l_s_ha = odd(steps(1, 100, 10));
    site.openings_cm2_m = odd(steps(1, 1000, 10));
    site.velocity_m_s = odd(steps(1, 100, 100));
}

void drawShaft(RandomSite& site) {
    site.rectangular = oneIn(2);
    site.type_b = oneIn(2);
    site.first_side_m = odd(steps(80, 600, 100));
    site.second_side_m = odd(steps(80, 600, 100));
    site.wall_m = odd(steps(5, 30, 100));
    site.shafts = oneIn(20) ? -1 : *rc::gen::inRange(0, 6);
    site.groundwater_m = oneIn(2) ? 0.0F : odd(steps(10, 150, 10));
    site.inlet_depth_m = odd(steps(5, 20, 10));
    site.filter_m = odd(steps(3, 15, 10));
    site.sand_m = odd(steps(1, 10, 10));
    site.seepage_path_m = odd(steps(10, 30, 10));
}

void drawTank(RandomSite& site) {
    site.specific_intensity_l_s_ha = odd(steps(1, 300, 10));
    site.tank_length_m = odd(steps(10, 500, 10));
    site.tank_width_m = odd(steps(10, 300, 10));
    site.tank_depth_m = odd(steps(3, 40, 10));
    site.tank_slope = odd(steps(0, 30, 10));
    site.settled = oneIn(2);
}

}  // namespace

RandomSite randomSite() {
    RandomSite site;
    site.area_m2 = odd(steps(50, 60000, 10));
    site.filtration_m_s = odd(filtration(), false);
    site.safety_factor = odd(steps(8, 20, 10), false);
    site.rains = rains();
    site.picked_row = *rc::gen::inRange(0, 10);
    drawTrench(site);
    drawShaft(site);
    drawTank(site);
    return site;
}

std::ostream& operator<<(std::ostream& out, const RandomSite& site) {
    const auto text = [](float value) { return numbers::general(value); };
    out << "area " << text(site.area_m2) << ", kf " << text(site.filtration_m_s) << ", f "
        << text(site.safety_factor) << ", picked row " << site.picked_row << ", rains";
    for (const calc::Rain& rain : site.rains) {
        out << ' ' << text(rain.duration_min) << '/' << text(rain.intensity_l_s_ha);
    }
    out << "\ntrench: soil " << site.soil_option << ", kfP " << text(site.swale_filtration_m_s)
        << ", porosity " << text(site.porosity) << ", " << text(site.trench_width_m) << " x "
        << text(site.trench_height_m) << ", drain " << site.has_drain << ", pipes " << text(site.pipe_count)
        << " of " << text(site.inner_pipe_mm) << '/' << text(site.outer_pipe_mm) << ", throttled "
        << text(site.throttled_l_s_ha) << ", openings " << text(site.openings_cm2_m) << " at "
        << text(site.velocity_m_s) << "\nshaft: rectangular " << site.rectangular << ", type B "
        << site.type_b << ", sides " << text(site.first_side_m) << ' ' << text(site.second_side_m)
        << ", wall " << text(site.wall_m) << ", count " << site.shafts << ", groundwater "
        << text(site.groundwater_m) << ", inlet " << text(site.inlet_depth_m) << ", filter "
        << text(site.filter_m) << ", sand " << text(site.sand_m) << ", path " << text(site.seepage_path_m)
        << "\ntank: q " << text(site.specific_intensity_l_s_ha) << ", " << text(site.tank_length_m) << " x "
        << text(site.tank_width_m) << " x " << text(site.tank_depth_m) << ", slope " << text(site.tank_slope)
        << ", settled " << site.settled << '\n';
    return out;
}

}  // namespace mero::forms::test
