// SPDX-License-Identifier: MIT
/// Makes the shared parts of the sections.
/// All sizes were compared with the limits before.
#include "picture/section_parts.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

constexpr double kMillimetresPerMetre = 1000.0;
/// The largest number of pipes that is drawn; no trench has more.
constexpr float kMostPipes = 20.0F;

}  // namespace

Section sectionBeforeResults() {
    Section section;
    section.hint = "Řez se nakreslí po výpočtu.";
    section.summary = section.hint;
    return section;
}

Section sectionOfOddValues() {
    Section section;
    section.hint = "Z těchto hodnot nelze řez nakreslit.";
    section.summary = section.hint;
    return section;
}

std::string metres(float value) {
    return numbers::general(value) + " m";
}

std::string metres(float value, int decimals) {
    return numbers::fixed(value, decimals) + " m";
}

Area rectangle(Material material, const Box& box) {
    return {material,
            {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}}};
}

void addOutline(Section& section, const Box& box) {
    const Point top_left{box.left, box.top};
    const Point top_right{box.right, box.top};
    const Point bottom_left{box.left, box.bottom};
    const Point bottom_right{box.right, box.bottom};
    section.lines.push_back({Stroke::Outline, top_left, bottom_left});
    section.lines.push_back({Stroke::Outline, bottom_left, bottom_right});
    section.lines.push_back({Stroke::Outline, top_right, bottom_right});
}

void addGroundwater(Section& section, float groundwater_depth_m, double unbroken_m) {
    const float depth = std::fabs(groundwater_depth_m);
    if (!canDraw(depth)) {
        return;
    }
    const bool beyond_break = depth > unbroken_m;
    section.levels.push_back({Stroke::Groundwater, depth, "HPV " + metres(depth), beyond_break});
    if (!beyond_break) {
        section.extent.bottom = std::max(section.extent.bottom, static_cast<double>(depth));
    }
}

std::string groundwaterPhrase(float groundwater_depth_m) {
    const float depth = std::fabs(groundwater_depth_m);
    return canDraw(depth) ? ", hladina podzemní vody " + metres(depth) + " pod povrchem" : "";
}

void addPipes(Section& section, const PipeValues& pipes, const Box& trench) {
    const bool any = pipes.count >= 1.0F && pipes.outer_diameter_mm > 0 && pipes.inner_diameter_mm > 0;
    if (!any) {
        return;
    }
    const double outer = static_cast<double>(pipes.outer_diameter_mm) / kMillimetresPerMetre;
    const double inner = static_cast<double>(pipes.inner_diameter_mm) / kMillimetresPerMetre;
    const bool countable = pipes.count <= kMostPipes;
    const int count = countable ? static_cast<int>(pipes.count) : 0;
    if (!countable || outer * count > trench.width() || outer > trench.height() || inner > outer ||
        !canDraw(inner)) {
        section.notes.emplace_back("potrubí se do řezu rýhy nevejde");
        return;
    }
    for (int i = 0; i < count; ++i) {
        const double x = trench.left + trench.width() * (i + 0.5) / count;
        section.pipes.push_back({{x, trench.bottom - outer / 2.0}, outer, inner});
    }
    section.notes.push_back("potrubí " + numbers::general(count) + " × ⌀ " +
                            numbers::general(pipes.outer_diameter_mm) + " / " +
                            numbers::general(pipes.inner_diameter_mm) + " mm");
}

}  // namespace mero::picture
