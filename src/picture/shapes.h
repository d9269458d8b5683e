// SPDX-License-Identifier: MIT
/// Points, boxes, and the meanings of areas and lines.
/// The painters choose colours and patterns.
#pragma once

namespace mero::picture {

struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Box {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    [[nodiscard]] constexpr double width() const { return right - left; }
    [[nodiscard]] constexpr double height() const { return bottom - top; }
    friend bool operator==(const Box&, const Box&) = default;
};

/// What fills an area.
enum class Material {
    Soil,
    Water,
    Gravel,  ///< fill of a trench, with water in its pores
    Filter,
    Sand,
    Concrete,
    Air,
    LevelMark,  ///< the triangle on a water level
    Bar,
    CriticalBar,
    Point,
    CriticalPoint,
};

/// What a line represents.
enum class Stroke {
    Ground,
    Outline,
    Water,
    Groundwater,
    GroundwaterLimit,  ///< the highest permitted groundwater level
    Flow,
    Dimension,
    Leader,
    Axis,
    GridLine,
    Curve,
    FineGridLine,  ///< between the decades of a logarithmic axis
    Series,        ///< one of several lines in a chart; PlacedLine::series says which
};

}  // namespace mero::picture
