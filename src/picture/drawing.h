// SPDX-License-Identifier: MIT
/// A picture set out on a sheet: everything in the sheet's own units (a window's pixels), the y axis down.
/// Texts stand in boxes that were measured for them; no two overlap and none leaves the sheet.
#pragma once

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
    Strong,  ///< the one value that matters
    Quiet,   ///< titles, notes, hints
};

/// How large texts are on the sheet.
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
};

struct PlacedText {
    Box box;
    std::string text;
    Emphasis emphasis = Emphasis::Plain;
    bool upright = false;  ///< turned, to be read from the right; the box is as it stands on the sheet
};

/// In the order of painting: areas, ellipses, lines, texts.
struct Drawing {
    std::vector<PlacedArea> areas;
    std::vector<PlacedEllipse> ellipses;
    std::vector<PlacedLine> lines;
    std::vector<PlacedText> texts;
    std::string summary;  ///< what it shows, in a sentence
};

}  // namespace mero::picture
