// SPDX-License-Identifier: MIT
/// Chooses colours, writes patterns as SVG elements.
/// Soil is hatched, gravel and filter show rings, sand shows dots.
#include "picture/svg_fills.h"

#include "picture/svg_text.h"

namespace mero::picture {
namespace {

constexpr unsigned kAccent = 0x1f4e9c;
constexpr unsigned kPatternInk = 0x8c8c8c;

std::string circle(double x, double y, double radius) {
    return "<circle cx=\"" + svgNumber(x) + "\" cy=\"" + svgNumber(y) + "\" r=\"" + svgNumber(radius) +
           "\"/>";
}

std::string opening(Material material, double width, double height, const std::string& style) {
    return "<pattern id=\"" + svgPatternId(material) + "\" patternUnits=\"userSpaceOnUse\" width=\"" +
           svgNumber(width) + "\" height=\"" + svgNumber(height) + "\" " + style + ">";
}

/// Oblique lines; the corners continue those of the neighbouring tiles.
std::string hatch(Material material, double distance, double width) {
    const std::string size = svgNumber(distance);
    const std::string half = svgNumber(distance / 2.0);
    return opening(material, distance, distance,
                   "fill=\"none\" stroke=\"#cccccc\" stroke-width=\"" + svgNumber(width) + "\"") +
           "<path d=\"M0 " + size + "L" + size + " 0M-" + half + " " + half + "L" + half + " -" + half + "M" +
           half + " " + svgNumber(1.5 * distance) + "L" + svgNumber(1.5 * distance) + " " + half +
           "\"/></pattern>\n";
}

/// Circles in rows, every other row shifted by half the distance.
std::string scatter(Material material, double distance, double radius, const std::string& style) {
    const double row = 0.8 * distance;
    return opening(material, distance, 2.0 * row, style) + circle(distance / 2.0, row / 2.0, radius) +
           circle(0.0, 1.5 * row, radius) + circle(distance, 1.5 * row, radius) + "</pattern>\n";
}

}  // namespace

unsigned svgFill(Material material) {
    switch (material) {
        case Material::Soil:
            return 0xe8e8e8;
        case Material::Water:
            return 0xa5b8d7;
        case Material::Gravel:
            return 0xd7dfed;
        case Material::Filter:
        case Material::Sand:
            return 0xf5f5f5;
        case Material::Concrete:
            return 0x999999;
        case Material::Air:
            return kSvgPaper;
        case Material::Bar:
            return 0xb1c1dc;
        case Material::LevelMark:
        case Material::CriticalBar:
        case Material::Point:
        case Material::CriticalPoint:
            break;
    }
    return kAccent;
}

unsigned svgInk(Stroke stroke) {
    switch (stroke) {
        case Stroke::Water:
        case Stroke::Groundwater:
        case Stroke::GroundwaterLimit:
        case Stroke::Flow:
        case Stroke::Curve:
            return kAccent;
        case Stroke::Leader:
            return 0x8c8c8c;
        case Stroke::GridLine:
            return 0xc8c8c8;
        case Stroke::FineGridLine:
            return 0xe6e6e6;
        case Stroke::Ground:
        case Stroke::Outline:
        case Stroke::Dimension:
            return 0x333333;
        case Stroke::Axis:
        case Stroke::Series:
            break;
    }
    return 0x000000;
}

std::string svgPatternId(Material material) {
    switch (material) {
        case Material::Soil:
            return "mero-soil";
        case Material::Gravel:
            return "mero-gravel";
        case Material::Filter:
            return "mero-filter";
        case Material::Sand:
            return "mero-sand";
        default:
            return "";
    }
}

std::string svgPattern(Material material, double line_height) {
    const std::string rings = "fill=\"none\" stroke=\"" + svgColour(kPatternInk) + "\" stroke-width=\"" +
                              svgNumber(line_height / 18.0) + "\"";
    switch (material) {
        case Material::Soil:
            return hatch(material, 0.7 * line_height, line_height / 18.0);
        case Material::Gravel:
            return scatter(material, 0.6 * line_height, 0.2 * line_height, rings);
        case Material::Filter:
            return scatter(material, 0.4 * line_height, 0.09 * line_height, rings);
        case Material::Sand:
            return scatter(material, 0.28 * line_height, 0.05 * line_height,
                           "fill=\"" + svgColour(kPatternInk) + "\"");
        default:
            return "";
    }
}

}  // namespace mero::picture
