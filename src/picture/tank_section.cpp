// SPDX-License-Identifier: MIT
/// Makes the section of an infiltration tank across its width.
/// The water stands as high as after the critical rain.
#include <algorithm>

#include "calc/tank.h"
#include "picture/facility_sections.h"
#include "picture/section_parts.h"
#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

/// Bisection steps for the water level; far more exact than a pixel.
constexpr int kHalvings = 24;

float volumeUpTo(const TankValues& values, float depth_m) {
    return calc::tank::volume(
        {.bottom_length_m = values.bottom_length_m,
         .bottom_width_m = values.bottom_width_m,
         .top_length_m = calc::tank::topSide(values.bottom_length_m, depth_m, values.slope),
         .top_width_m = calc::tank::topSide(values.bottom_width_m, depth_m, values.slope),
         .depth_m = depth_m});
}

/// Depth of the water with the required storage, at most the depth of the tank.
double waterDepth(const TankValues& values) {
    if (*values.required_storage_m3 >= *values.volume_m3) {
        return values.depth_m;
    }
    float low = 0;
    float high = values.depth_m;
    for (int i = 0; i < kHalvings; ++i) {
        const float middle = (low + high) / 2.0F;
        (volumeUpTo(values, middle) < *values.required_storage_m3 ? low : high) = middle;
    }
    return high;
}

}  // namespace

Section tankSection(const TankValues& values) {
    if (!values.required_storage_m3 || !values.volume_m3) {
        return sectionBeforeResults();
    }
    const double width = values.bottom_width_m;
    const double depth = values.depth_m;
    const double run = depth * static_cast<double>(values.slope);
    if (!canDraw(values.bottom_length_m) || !canDraw(width) || !canDraw(depth) || !(run >= 0.0) ||
        !canDraw(width + 2.0 * run) || !(*values.required_storage_m3 >= 0)) {
        return sectionOfOddValues();
    }
    const double water = waterDepth(values);
    const double level = depth - water;
    const double water_run = run * (water / depth);
    Section section;
    section.areas.push_back({Material::Air, {{-run, 0.0}, {width + run, 0.0}, {width, depth}, {0.0, depth}}});
    if (water > 0) {
        section.areas.push_back(
            {Material::Water,
             {{-water_run, level}, {width + water_run, level}, {width, depth}, {0.0, depth}}});
        section.lines.push_back({Stroke::Water, {-water_run, level}, {width + water_run, level}});
    }
    section.lines.push_back({Stroke::Outline, {-run, 0.0}, {0.0, depth}});
    section.lines.push_back({Stroke::Outline, {0.0, depth}, {width, depth}});
    section.lines.push_back({Stroke::Outline, {width, depth}, {width + run, 0.0}});
    const float top_width = calc::tank::topSide(values.bottom_width_m, values.depth_m, values.slope);
    section.dimensions.push_back({Side::Left, 0.0, depth, "hloubka", metres(values.depth_m)});
    section.dimensions.push_back({Side::Above, -run, width + run, "nahoře", metres(top_width, 2)});
    section.dimensions.push_back({Side::Below, 0.0, width, "šířka dna", metres(values.bottom_width_m)});
    section.extent = {-run, 0.0, width + run, depth};
    section.legible_width_m = width;
    section.legible_height_m = depth;
    addGroundwater(section, values.groundwater_depth_m, 2.0 * depth);
    section.notes.push_back("sklon svahů 1 : " + numbers::general(values.slope) + ", délka dna " +
                            metres(values.bottom_length_m));
    section.summary = "Řez vsakovací nádrží: dno " + numbers::general(values.bottom_length_m) + " × " +
                      metres(values.bottom_width_m) + ", hloubka " + metres(values.depth_m) +
                      ", sklon svahů 1 : " + numbers::general(values.slope) + ", objem " +
                      numbers::fixed(*values.volume_m3, 2) + " m³, potřebný objem " +
                      numbers::fixed(*values.required_storage_m3, 2) + " m³" +
                      groundwaterPhrase(values.groundwater_depth_m) + ".";
    return section;
}

}  // namespace mero::picture
