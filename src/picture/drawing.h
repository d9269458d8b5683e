// SPDX-License-Identifier: MIT
/// A picture laid out on a sheet, in the sheet's units (pixels); the y axis points down.
/// Every text has a box measured for it; no two boxes overlap and none leaves the sheet.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "picture/shapes.h"

namespace mero::picture {

struct Sheet {
    double width = 0;
    double height = 0;
};

enum class Emphasis {
    Plain,
    Strong,  ///< the decisive value, headings
    Quiet,   ///< titles, notes, hints
};

/// Measures texts in the font of the sheet.
struct TextSizes {
    double line_height = 0;
    std::function<double(std::string_view, Emphasis)> measure;

    [[nodiscard]] double width(std::string_view text, Emphasis emphasis = Emphasis::Plain) const {
        return measure(text, emphasis);
    }
};

struct PlacedArea {
    Material material = Material::Soil;
    std::vector<Point> corners;
};

struct PlacedEllipse {
    Material material = Material::Air;
    Box box;
};

struct PlacedLine {
    Stroke stroke = Stroke::Outline;
    std::vector<Point> points;
    std::size_t series = 0;  ///< of a Stroke::Series: its number from 0
};

/// The mark of a series at one of its points.
struct PlacedMark {
    std::size_t series = 0;
    Point centre;
    double radius = 0;
};

/// Where a text starts or ends when the painting font is narrower than the measured one.
enum class Align {
    Left,
    Centre,
    Right,
};

struct PlacedText {
    Box box = {};
    std::string text;
    Emphasis emphasis = Emphasis::Plain;
    bool upright = false;  ///< rotated by 90 degrees to read upwards; `box` encloses the rotated text
    Align align = Align::Centre;
    double size = 1;  ///< relative to the other texts of the drawing
};

/// In painting order: areas, ellipses, lines, marks, texts.
struct Drawing {
    std::vector<PlacedArea> areas;
    std::vector<PlacedEllipse> ellipses;
    std::vector<PlacedLine> lines;
    std::vector<PlacedMark> marks;
    std::vector<PlacedText> texts;
    std::string summary;  ///< what it shows, in a sentence
};

}  // namespace mero::picture
