// SPDX-License-Identifier: MIT
/// A section through a facility in metres: x to the right, y the depth below the ground.
/// arrange() lays it out on a sheet.
#pragma once

#include <string>
#include <vector>

#include "picture/shapes.h"

namespace mero::picture {

struct Area {
    Material material = Material::Soil;
    std::vector<Point> corners;
};

struct Line {
    Stroke stroke = Stroke::Outline;
    Point from;
    Point to;
};

struct Pipe {
    Point centre;
    double outer_diameter_m = 0;
    double inner_diameter_m = 0;
};

/// Position of a dimension line: above and below for widths, left for heights.
enum class Side { Above, Below, Left };

/// A dimension line with its value.
struct Dimension {
    Side side = Side::Below;
    double from = 0;  ///< x or y of its start [m]
    double to = 0;
    std::string name;  ///< what is measured; dropped when there is little room
    std::string value;
    /// A height of the whole facility, outside of the heights of its parts.
    bool outer = false;
};

/// A level across the whole drawing, labelled on the right.
struct Level {
    Stroke stroke = Stroke::Groundwater;
    double depth_m = 0;
    std::string text;
    /// Too deep to be drawn to scale: it is drawn nearer, below a break line.
    bool beyond_break = false;
};

struct Section {
    std::vector<Area> areas;
    std::vector<Line> lines;
    std::vector<Pipe> pipes;
    std::vector<Dimension> dimensions;
    std::vector<Level> levels;
    std::vector<std::string> notes;  ///< below the drawing, the most important first
    Box extent;                      ///< the part to be shown; its top is the ground
    double legible_width_m = 0;      ///< the smallest width and height that must be legible
    double legible_height_m = 0;
    std::string summary;  ///< the main dimensions in a sentence
    std::string hint;     ///< replaces the drawing: why there is none

    [[nodiscard]] bool drawable() const { return hint.empty(); }
};

}  // namespace mero::picture
