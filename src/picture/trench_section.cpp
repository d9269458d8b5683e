// SPDX-License-Identifier: MIT
/// Makes the sections of a trench and of a trench under a swale, across their length.
#include <algorithm>

#include "picture/facility_sections.h"
#include "picture/section_parts.h"

namespace mero::picture {
namespace {

/// Adds the filled trench from `top_m` down, with its dimensions.
Box addTrench(Section& section, const TrenchValues& values, double top_m) {
    const double width = values.width_m;
    const double height = values.height_m;
    const Box trench{0.0, top_m, width, top_m + height};
    section.areas.push_back(rectangle(Material::Gravel, trench));
    addOutline(section, trench);
    section.dimensions.push_back(
        {Side::Left, trench.top, trench.bottom, "výška rýhy", metres(values.height_m)});
    section.dimensions.push_back({Side::Below, 0.0, width, "šířka", metres(values.width_m)});
    section.legible_width_m = width;
    section.legible_height_m = height;
    return trench;
}

void addTrenchNotes(Section& section, const TrenchValues& values, const Box& trench) {
    section.notes.push_back("délka rýhy " + metres(*values.length_m, 1));
    addPipes(section, values.pipes, trench);
    addGroundwater(section, values.groundwater_depth_m, 2.0 * trench.bottom);
}

bool canDrawTrench(const TrenchValues& values) {
    return canDraw(*values.length_m) && canDraw(values.width_m) && canDraw(values.height_m);
}

std::string trenchPhrase(const TrenchValues& values) {
    return "délka " + metres(*values.length_m, 1) + ", šířka " + metres(values.width_m) + ", výška rýhy " +
           metres(values.height_m);
}

}  // namespace

Section trenchSection(const TrenchValues& values) {
    if (!values.length_m) {
        return sectionBeforeResults();
    }
    if (!canDrawTrench(values)) {
        return sectionOfOddValues();
    }
    Section section;
    const Box trench = addTrench(section, values, 0.0);
    section.lines.push_back({Stroke::Water, {trench.left, 0.0}, {trench.right, 0.0}});
    section.extent = trench;
    addTrenchNotes(section, values, trench);
    section.summary =
        "Řez vsakovací rýhou: " + trenchPhrase(values) + groundwaterPhrase(values.groundwater_depth_m) + ".";
    return section;
}

Section swaleTrenchSection(const SwaleTrenchValues& values) {
    if (!values.trench.length_m || !values.swale_depth_m) {
        return sectionBeforeResults();
    }
    const double depth = *values.swale_depth_m;
    if (!canDrawTrench(values.trench) || !canDraw(depth)) {
        return sectionOfOddValues();
    }
    Section section;
    const double width = values.trench.width_m;
    const double bank = bankRun(depth, width);
    section.areas.push_back(
        {Material::Water, {{-bank, 0.0}, {width + bank, 0.0}, {width, depth}, {0.0, depth}}});
    section.dimensions.push_back({Side::Left, 0.0, depth, "průleh", metres(*values.swale_depth_m, 2)});
    const Box trench = addTrench(section, values.trench, depth);
    section.lines.push_back({Stroke::Outline, {-bank, 0.0}, {0.0, depth}});
    section.lines.push_back({Stroke::Outline, {0.0, depth}, {width, depth}});
    section.lines.push_back({Stroke::Outline, {width, depth}, {width + bank, 0.0}});
    section.lines.push_back({Stroke::Water, {-bank, 0.0}, {width + bank, 0.0}});
    section.extent = {-bank, 0.0, width + bank, trench.bottom};
    section.legible_height_m = std::min(section.legible_height_m, depth);
    addTrenchNotes(section, values.trench, trench);
    section.summary = "Řez průlehem s rýhou: " + trenchPhrase(values.trench) + ", hloubka průlehu " +
                      metres(*values.swale_depth_m, 2) +
                      groundwaterPhrase(values.trench.groundwater_depth_m) + ".";
    return section;
}

}  // namespace mero::picture
