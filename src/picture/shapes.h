// SPDX-License-Identifier: MIT
/// Points, boxes and what areas and lines stand for. The painter decides on colours and patterns.
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

/// What an area is filled with.
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

/// What a line stands for.
enum class Stroke {
    Ground,
    Outline,
    Water,
    Groundwater,
    GroundwaterLimit,  ///< how high the groundwater may stand
    Flow,
    Dimension,
    Leader,
    Axis,
    GridLine,
    Curve,
};

}  // namespace mero::picture
