// SPDX-License-Identifier: MIT
/// Writes one element for each placed area, ellipse, line, mark and text.
/// Widths of lines and patterns depend on the size of the texts, as in the window.
#include "picture/svg_painter.h"

#include <algorithm>
#include <vector>

#include "picture/line_style.h"
#include "picture/svg_fills.h"

namespace mero::picture {
namespace {

std::string attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string attribute(const char* name, double value) {
    return attribute(name, svgNumber(value));
}

std::string pointList(const std::vector<Point>& points) {
    std::string list;
    for (const Point& point : points) {
        list += (list.empty() ? "" : " ") + svgNumber(point.x) + "," + svgNumber(point.y);
    }
    return attribute("points", list);
}

std::string rectangle(const Box& box, unsigned fill) {
    return "<rect" + attribute("x", box.left) + attribute("y", box.top) + attribute("width", box.width()) +
           attribute("height", box.height()) + attribute("fill", svgColour(fill)) + "/>\n";
}

class SvgWriter {
  public:
    SvgWriter(const Drawing& drawing, const Sheet& sheet, double font_size_px)
        : drawing_(&drawing),
          sheet_(sheet),
          font_size_(font_size_px),
          line_(svgTextSizes(font_size_px).line_height) {}

    std::string document() {
        const std::string width = svgNumber(sheet_.width);
        const std::string height = svgNumber(sheet_.height);
        svg_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
               attribute("width", width) + attribute("height", height) +
               attribute("viewBox", "0 0 " + width + " " + height) +
               attribute("font-family", "DejaVu Sans, Arial, sans-serif") +
               attribute("font-size", font_size_) + attribute("stroke-linejoin", "round") + ">\n";
        if (!drawing_->summary.empty()) {
            svg_ += "<desc>" + xmlText(drawing_->summary) + "</desc>\n";
        }
        svg_ += rectangle({0, 0, sheet_.width, sheet_.height}, kSvgPaper);
        addPatterns();
        for (const PlacedArea& area : drawing_->areas) {
            addArea(area);
        }
        for (const PlacedEllipse& ellipse : drawing_->ellipses) {
            addEllipse(ellipse);
        }
        for (const PlacedLine& line : drawing_->lines) {
            addLine(line);
        }
        for (const PlacedMark& mark : drawing_->marks) {
            addMark(mark);
        }
        for (const PlacedText& text : drawing_->texts) {
            addText(text);
        }
        return svg_ + "</svg>\n";
    }

  private:
    void addPatterns() {
        std::vector<Material> patterned;
        for (const PlacedArea& area : drawing_->areas) {
            if (!svgPatternId(area.material).empty() &&
                std::find(patterned.begin(), patterned.end(), area.material) == patterned.end()) {
                patterned.push_back(area.material);
            }
        }
        if (patterned.empty()) {
            return;
        }
        svg_ += "<defs>\n";
        for (const Material material : patterned) {
            svg_ += svgPattern(material, line_);
        }
        svg_ += "</defs>\n";
    }

    void addArea(const PlacedArea& area) {
        const std::string polygon = "<polygon" + pointList(area.corners);
        svg_ += polygon + attribute("fill", svgColour(svgFill(area.material))) + "/>\n";
        const std::string pattern = svgPatternId(area.material);
        if (!pattern.empty()) {
            svg_ += polygon + attribute("fill", "url(#" + pattern + ")") + "/>\n";
        }
    }

    void addEllipse(const PlacedEllipse& ellipse) {
        const Box& box = ellipse.box;
        svg_ += "<ellipse" + attribute("cx", (box.left + box.right) / 2.0) +
                attribute("cy", (box.top + box.bottom) / 2.0) + attribute("rx", box.width() / 2.0) +
                attribute("ry", box.height() / 2.0) +
                attribute("fill", svgColour(svgFill(ellipse.material))) +
                attribute("stroke", svgColour(svgInk(Stroke::Outline))) +
                attribute("stroke-width", line_ / 18.0) + "/>\n";
    }

    /// A series is one polyline however few points it has; other lines are mostly straight.
    void addLine(const PlacedLine& line) {
        const bool series = line.stroke == Stroke::Series;
        if (line.points.size() == 2 && !series) {
            svg_ += "<line" + attribute("x1", line.points[0].x) + attribute("y1", line.points[0].y) +
                    attribute("x2", line.points[1].x) + attribute("y2", line.points[1].y);
        } else {
            svg_ += "<polyline" + pointList(line.points) + attribute("fill", "none");
        }
        const double width = strokeWidth(line.stroke, line_);
        svg_ += attribute("stroke", svgColour(series ? seriesColour(line.series) : svgInk(line.stroke))) +
                attribute("stroke-width", width);
        std::string dashes;
        for (const double dash : dashesOf(line)) {
            dashes += (dashes.empty() ? "" : " ") + svgNumber(dash * width);
        }
        svg_ += (dashes.empty() ? "" : attribute("stroke-dasharray", dashes)) + "/>\n";
    }

    void addMark(const PlacedMark& mark) {
        const std::string colour = svgColour(seriesColour(mark.series));
        const std::vector<Point> corners = cornersOf(mark);
        if (corners.empty()) {
            svg_ += "<circle" + attribute("cx", mark.centre.x) + attribute("cy", mark.centre.y) +
                    attribute("r", mark.radius);
        } else {
            svg_ += "<polygon" + pointList(corners);
        }
        svg_ += attribute("fill", isFilled(mark) ? colour : svgColour(kSvgPaper)) +
                attribute("stroke", colour) + "/>\n";
    }

    /// Paper behind the text interrupts the leaders and grid lines below it.
    void addText(const PlacedText& text) {
        const Box& box = text.box;
        svg_ += rectangle(box, kSvgPaper);
        const double size = font_size_ * text.size;
        double x = (box.left + box.right) / 2.0;
        double y = (box.top + box.bottom) / 2.0;
        std::string more;
        if (text.upright) {
            more = attribute("transform", "rotate(-90 " + svgNumber(x) + " " + svgNumber(y) + ")");
        } else if (text.align != Align::Centre) {
            x = text.align == Align::Left ? box.left : box.right;
        }
        y += svgBaseline(size);
        const bool centred = text.upright || text.align == Align::Centre;
        const char* const anchor = centred ? "middle" : text.align == Align::Left ? "start" : "end";
        if (text.size != 1.0) {
            more += attribute("font-size", size);
        }
        if (text.emphasis == Emphasis::Strong) {
            more += attribute("font-weight", "bold");
        } else if (text.emphasis == Emphasis::Quiet) {
            more += attribute("fill", "#404040");
        }
        svg_ += "<text" + attribute("x", x) + attribute("y", y) + attribute("text-anchor", anchor) + more +
                ">" + xmlText(text.text) + "</text>\n";
    }

    const Drawing* drawing_;
    Sheet sheet_;
    double font_size_;
    double line_;
    std::string svg_;
};

}  // namespace

std::string svgDocument(const Drawing& drawing, const Sheet& sheet, double font_size_px) {
    return SvgWriter(drawing, sheet, font_size_px).document();
}

}  // namespace mero::picture
