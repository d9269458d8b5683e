// SPDX-License-Identifier: MIT
/// Makes the sections of surface infiltration and of a swale.
/// Only their areas are known, so they are drawn as wide as a square of that area.
#include <cmath>

#include "picture/facility_sections.h"
#include "picture/section_parts.h"
#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

/// Depth of the soil below a surface, as a share of its width.
constexpr double kSoilBelowSurface = 0.25;
constexpr int kFlowArrows = 7;
constexpr double kArrowStart = 0.15;
constexpr double kArrowEnd = 0.6;
/// Groundwater deeper than so many times the ponding is drawn below a break line.
constexpr double kUnbroken = 2.5;

std::string square(float area_m2, double side_m) {
    return "plocha " + numbers::fixed(area_m2, 1) + " m², kreslená jako čtverec o straně " +
           numbers::fixed(side_m, 1) + " m";
}

}  // namespace

Section surfaceSection(const SurfaceValues& values) {
    if (!values.area_m2) {
        return sectionBeforeResults();
    }
    const double side = *values.area_m2 > 0 ? std::sqrt(static_cast<double>(*values.area_m2)) : 0.0;
    if (!canDraw(side)) {
        return sectionOfOddValues();
    }
    const double soil = kSoilBelowSurface * side;
    Section section;
    section.extent = {0.0, 0.0, side, soil};
    section.legible_width_m = side;
    section.legible_height_m = soil;
    section.lines.push_back({Stroke::Water, {0.0, 0.0}, {side, 0.0}});
    for (int i = 0; i < kFlowArrows; ++i) {
        const double x = side * (i + 0.5) / kFlowArrows;
        section.lines.push_back({Stroke::Flow, {x, kArrowStart * soil}, {x, kArrowEnd * soil}});
    }
    section.dimensions.push_back({Side::Above, 0.0, side, "strana", numbers::fixed(side, 1) + " m"});
    addGroundwater(section, values.groundwater_depth_m, 2.0 * soil);
    section.notes.push_back(square(*values.area_m2, side));
    section.summary = "Řez plošným vsakováním: plocha " + numbers::fixed(*values.area_m2, 1) + " m²" +
                      groundwaterPhrase(values.groundwater_depth_m) + ".";
    return section;
}

Section swaleSection(const SwaleValues& values) {
    if (!values.area_m2 || !values.ponding_m) {
        return sectionBeforeResults();
    }
    const double side = *values.area_m2 > 0 ? std::sqrt(static_cast<double>(*values.area_m2)) : 0.0;
    const double ponding = *values.ponding_m;
    if (!canDraw(side) || !canDraw(ponding)) {
        return sectionOfOddValues();
    }
    const double bank = bankRun(ponding, side);
    Section section;
    section.extent = {-bank, 0.0, side + bank, ponding};
    section.legible_width_m = side;
    section.legible_height_m = ponding;
    section.areas.push_back(
        {Material::Water, {{-bank, 0.0}, {side + bank, 0.0}, {side, ponding}, {0.0, ponding}}});
    section.lines.push_back({Stroke::Outline, {-bank, 0.0}, {0.0, ponding}});
    section.lines.push_back({Stroke::Outline, {0.0, ponding}, {side, ponding}});
    section.lines.push_back({Stroke::Outline, {side, ponding}, {side + bank, 0.0}});
    section.lines.push_back({Stroke::Water, {-bank, 0.0}, {side + bank, 0.0}});
    section.dimensions.push_back({Side::Left, 0.0, ponding, "vzdutí", metres(*values.ponding_m, 2)});
    section.dimensions.push_back({Side::Below, 0.0, side, "strana", numbers::fixed(side, 1) + " m"});
    addGroundwater(section, values.groundwater_depth_m, kUnbroken * ponding);
    section.notes.push_back(square(*values.area_m2, side));
    section.summary = "Řez průlehem: vsakovací plocha " + numbers::fixed(*values.area_m2, 1) +
                      " m², výška vzdutí " + metres(*values.ponding_m, 2) +
                      groundwaterPhrase(values.groundwater_depth_m) + ".";
    return section;
}

}  // namespace mero::picture
