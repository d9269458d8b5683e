// SPDX-License-Identifier: MIT
/// Chooses widths, dashes and marks.
/// Series of the same dashes have different marks.
#include "picture/line_style.h"

namespace mero::picture {
namespace {

constexpr std::array<std::uint32_t, 6> kColours{0x000000, 0x1f4e9c, 0xa02020, 0x1f6e3a, 0x7a3e9d, 0x8a5a00};
constexpr std::size_t kDashPatterns = 4;
constexpr double kMarkRadius = 0.22;  ///< [lines of text]

enum class MarkShape { FilledCircle, OpenCircle, Square, Triangle };

MarkShape shapeOf(std::size_t series) {
    constexpr std::array kShapes{MarkShape::FilledCircle, MarkShape::OpenCircle, MarkShape::Square,
                                 MarkShape::Triangle};
    return kShapes[(series + series / kDashPatterns) % kShapes.size()];
}

}  // namespace

double strokeWidth(Stroke stroke, double line_height) {
    switch (stroke) {
        case Stroke::Ground:
        case Stroke::Curve:
            return line_height / 7;
        case Stroke::Outline:
        case Stroke::Water:
        case Stroke::Groundwater:
        case Stroke::GroundwaterLimit:
        case Stroke::Series:
            return line_height / 10;
        case Stroke::Flow:
        case Stroke::Dimension:
        case Stroke::Axis:
            return line_height / 14;
        case Stroke::FineGridLine:
            return line_height / 27;
        case Stroke::Leader:
        case Stroke::GridLine:
            break;
    }
    return line_height / 20;
}

std::vector<double> dashesOf(const PlacedLine& line) {
    switch (line.stroke) {
        case Stroke::Groundwater:
            return {6, 3};
        case Stroke::GroundwaterLimit:
            return {2, 3};
        case Stroke::Series:
            break;
        default:
            return {};
    }
    switch (line.series % kDashPatterns) {
        case 0:
            return {};
        case 1:
            return {5, 2.5};
        case 2:
            return {1.25, 1.875};
        default:
            return {6.25, 1.875, 1.25, 1.875};
    }
}

std::uint32_t seriesColour(std::size_t series) {
    return kColours[series % kColours.size()];
}

double markRadius(double line_height) {
    return kMarkRadius * line_height;
}

bool isFilled(const PlacedMark& mark) {
    const MarkShape shape = shapeOf(mark.series);
    return shape == MarkShape::FilledCircle || shape == MarkShape::Square;
}

std::vector<Point> cornersOf(const PlacedMark& mark) {
    const auto at = [&](double x, double y) {
        return Point{mark.centre.x + x * mark.radius, mark.centre.y + y * mark.radius};
    };
    switch (shapeOf(mark.series)) {
        case MarkShape::FilledCircle:
        case MarkShape::OpenCircle:
            break;
        case MarkShape::Square:
            return {at(-1, -1), at(1, -1), at(1, 1), at(-1, 1)};
        case MarkShape::Triangle:
            return {at(0, -1.2), at(1.2, 1), at(-1.2, 1)};
    }
    return {};
}

}  // namespace mero::picture
