// SPDX-License-Identifier: MIT
/// Section through a facility, in metres: x to the right, y the depth below the ground.
/// It says what there is and how large it is; where it comes to stand on a sheet is arrange()'s.
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

/// Where a dimension line stands. Above and below it measures a width, on the left a height.
enum class Side { Above, Below, Left };

/// A dimension line with its value.
struct Dimension {
    Side side = Side::Below;
    double from = 0;  ///< x or y where it begins [m]
    double to = 0;
    std::string name;  ///< what is measured; left out where there is little room
    std::string value;
    /// On the left: a dimension of the whole, outside of those of its parts.
    bool outer = false;
};

/// A level that goes on beside the facility, named on the right.
struct Level {
    Stroke stroke = Stroke::Groundwater;
    double depth_m = 0;
    std::string text;
    /// So far down that the drawing is broken in between: it stands nearer than it is.
    bool beyond_break = false;
};

struct Section {
    std::vector<Area> areas;
    std::vector<Line> lines;
    std::vector<Pipe> pipes;
    std::vector<Dimension> dimensions;
    std::vector<Level> levels;
    std::vector<std::string> notes;  ///< below the drawing, the most important first
    Box extent;                      ///< all of it must be in view; its top is the ground
    double legible_width_m = 0;      ///< the smallest width and height that must be seen
    double legible_height_m = 0;
    std::string summary;  ///< the main dimensions in a sentence
    std::string hint;     ///< instead of a drawing: why there is none

    [[nodiscard]] bool drawable() const { return hint.empty(); }
};

}  // namespace mero::picture
