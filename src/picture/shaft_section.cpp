// SPDX-License-Identifier: MIT
/// Makes the section of an infiltration shaft: wall, water, filter and sand layer.
/// Also shows the highest permitted groundwater level.
#include <algorithm>
#include <cmath>

#include "picture/facility_sections.h"
#include "picture/section_parts.h"
#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

/// Length of the drawn inlet, as a share of the inner width.
constexpr double kInletLength = 0.3;

bool canDrawShaft(const ShaftValues& values) {
    const bool rectangle_drawable = !values.rectangular || canDraw(values.inner_length_m);
    const bool sand_drawable = values.sand_layer_m == 0 || canDraw(values.sand_layer_m);
    // A water level of 0 is a valid result.
    const bool level_drawable = *values.water_level_m == 0 || canDraw(*values.water_level_m);
    return canDraw(values.inner_width_m) && canDraw(values.wall_m) && canDraw(values.inlet_depth_m) &&
           canDraw(values.filter_layer_m) && canDraw(*values.depth_m) &&
           canDraw(*values.required_embedding_m) && rectangle_drawable && sand_drawable && level_drawable;
}

/// Adds the layers from the ground down.
class Stack {
  public:
    Stack(Section& section, double width_m) : section_(&section), width_m_(width_m) {}

    void add(Material material, double height_m, const std::string& name, const std::string& value) {
        if (height_m <= 0) {
            return;
        }
        const double top = bottom_m_;
        bottom_m_ += height_m;
        section_->areas.push_back(rectangle(material, {0.0, top, width_m_, bottom_m_}));
        section_->dimensions.push_back({Side::Left, top, bottom_m_, name, value});
    }
    [[nodiscard]] double bottom() const { return bottom_m_; }

  private:
    Section* section_;
    double width_m_;
    double bottom_m_ = 0;
};

std::string shape(const ShaftValues& values) {
    std::string text = values.rectangular ? "šachta " + numbers::general(values.inner_width_m) + " × " +
                                                metres(values.inner_length_m)
                                          : "šachta ⌀ " + metres(values.inner_width_m);
    text += ", stěna " + metres(values.wall_m);
    return values.count > 1 ? numbers::general(values.count) + "× " + text : text;
}

}  // namespace

Section shaftSection(const ShaftValues& values) {
    if (!values.water_level_m || !values.depth_m || !values.required_embedding_m) {
        return sectionBeforeResults();
    }
    if (!canDrawShaft(values)) {
        return sectionOfOddValues();
    }
    Section section;
    const double width = values.inner_width_m;
    const double wall = values.wall_m;
    Stack stack(section, width);
    stack.add(Material::Air, values.inlet_depth_m, "přítok", metres(values.inlet_depth_m));
    const double inlet = stack.bottom();
    stack.add(Material::Water, *values.water_level_m, "vzdutí", metres(*values.water_level_m, 2));
    stack.add(Material::Filter, values.filter_layer_m, "filtr", metres(values.filter_layer_m));
    stack.add(Material::Sand, values.sand_layer_m, "písek", metres(values.sand_layer_m));
    const double bottom = stack.bottom();
    const Box left_wall{-wall, 0.0, 0.0, bottom};
    const Box right_wall{width, 0.0, width + wall, bottom};
    for (const Box& box : {left_wall, right_wall}) {
        section.areas.push_back(rectangle(Material::Concrete, box));
        addOutline(section, box);
    }
    if (*values.water_level_m > 0) {
        section.lines.push_back({Stroke::Water, {0.0, inlet}, {width, inlet}});
    }
    section.lines.push_back({Stroke::Outline, {-wall, 0.0}, {width + wall, 0.0}});
    section.lines.push_back({Stroke::Outline, {0.0, bottom}, {width, bottom}});
    section.lines.push_back({Stroke::Flow, {-wall - kInletLength * width, inlet}, {0.0, inlet}});
    section.dimensions.push_back({Side::Left, 0.0, bottom, "hloubka", metres(*values.depth_m, 2), true});
    section.dimensions.push_back(
        {Side::Below, 0.0, width, values.rectangular ? "šířka" : "⌀", metres(values.inner_width_m)});
    section.extent = {-wall - kInletLength * width, 0.0, width + wall, bottom};
    section.legible_width_m = width;
    section.legible_height_m = std::min({inlet, static_cast<double>(values.filter_layer_m)});

    const double required = *values.required_embedding_m;
    if (required <= 2.0 * bottom) {
        section.levels.push_back(
            {Stroke::GroundwaterLimit, required, "HPV ≥ " + metres(*values.required_embedding_m, 2)});
        section.extent.bottom = std::max(bottom, required);
    }
    addGroundwater(section, values.groundwater_depth_m, 1.5 * section.extent.bottom);
    section.notes.push_back(shape(values));
    section.summary = "Řez vsakovací šachtou: " + shape(values) + ", výška vzdutí " +
                      metres(*values.water_level_m, 2) + ", hloubka šachty " + metres(*values.depth_m, 2) +
                      ", nejmenší hloubka podzemní vody " + metres(*values.required_embedding_m, 2) +
                      groundwaterPhrase(values.groundwater_depth_m) + ".";
    return section;
}

}  // namespace mero::picture
