// SPDX-License-Identifier: MIT
/// Texts of known sizes, and what must hold for every drawing on every sheet.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "picture/drawing.h"
#include "picture/section.h"

namespace mero::picture {

constexpr double kLineHeight = 14;
constexpr double kCharacterWidth = 7;

/// Every character is 7 wide, every line 14 high.
inline TextSizes plainSizes() {
    return {.line_height = kLineHeight, .measure = [](std::string_view text, Emphasis /*emphasis*/) {
                const auto characters = std::count_if(text.begin(), text.end(), [](char byte) {
                    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
                });
                return kCharacterWidth * static_cast<double>(characters);
            }};
}

inline bool overlap(const Box& a, const Box& b) {
    constexpr double kTouching = 1e-6;
    return a.left < b.right - kTouching && b.left < a.right - kTouching && a.top < b.bottom - kTouching &&
           b.top < a.bottom - kTouching;
}

inline std::vector<Point> allPoints(const Drawing& drawing) {
    std::vector<Point> points;
    for (const PlacedArea& area : drawing.areas) {
        points.insert(points.end(), area.corners.begin(), area.corners.end());
    }
    for (const PlacedLine& line : drawing.lines) {
        points.insert(points.end(), line.points.begin(), line.points.end());
    }
    for (const PlacedEllipse& ellipse : drawing.ellipses) {
        points.push_back({ellipse.box.left, ellipse.box.top});
        points.push_back({ellipse.box.right, ellipse.box.bottom});
    }
    return points;
}

/// Nothing leaves the sheet, no text overlaps another.
inline void expectTidy(const Drawing& drawing, const Sheet& sheet) {
    constexpr double kRounding = 1e-6;
    for (const Point& point : allPoints(drawing)) {
        ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
        EXPECT_GE(point.x, -kRounding);
        EXPECT_GE(point.y, -kRounding);
        EXPECT_LE(point.x, sheet.width + kRounding);
        EXPECT_LE(point.y, sheet.height + kRounding);
    }
    for (std::size_t i = 0; i < drawing.texts.size(); ++i) {
        const PlacedText& text = drawing.texts[i];
        EXPECT_GE(text.box.left, -kRounding) << text.text;
        EXPECT_GE(text.box.top, -kRounding) << text.text;
        EXPECT_LE(text.box.right, sheet.width + kRounding) << text.text;
        EXPECT_LE(text.box.bottom, sheet.height + kRounding) << text.text;
        for (std::size_t k = i + 1; k < drawing.texts.size(); ++k) {
            EXPECT_FALSE(overlap(text.box, drawing.texts[k].box))
                << text.text << " / " << drawing.texts[k].text;
        }
    }
}

inline std::vector<std::string> textsOf(const Drawing& drawing) {
    std::vector<std::string> texts;
    for (const PlacedText& text : drawing.texts) {
        texts.push_back(text.text);
    }
    return texts;
}

/// The corners of the first area of that material; empty when there is none.
inline std::vector<Point> cornersOf(const Section& section, Material material) {
    for (const Area& area : section.areas) {
        if (area.material == material) {
            return area.corners;
        }
    }
    return {};
}

/// The dimensions as texts: "name value".
inline std::vector<std::string> dimensionsOf(const Section& section) {
    std::vector<std::string> texts;
    for (const Dimension& dimension : section.dimensions) {
        texts.push_back(dimension.name + " " + dimension.value);
    }
    return texts;
}

inline std::ostream& operator<<(std::ostream& out, const Point& point) {
    return out << '(' << point.x << ", " << point.y << ')';
}

}  // namespace mero::picture
