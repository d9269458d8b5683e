// SPDX-License-Identifier: MIT
/// Lays out bars and curves over a linear axis from zero.
/// Labels below the axis that do not fit are dropped.
#include <algorithm>
#include <utility>

#include "picture/arrange.h"
#include "picture/chart_parts.h"
#include "picture/text_lines.h"

namespace mero::picture {
namespace {

constexpr double kMargin = 0.4;        ///< around everything [lines]
constexpr double kLeastPlotWidth = 7;  ///< a smaller plot is not drawn [lines]
constexpr double kLeastPlotHeight = 2.5;
constexpr double kRoomForMarkedText = 1.4;
constexpr double kBarShare = 0.62;
constexpr double kPointRadius = 0.22;
constexpr double kLabelGap = 0.35;

class ChartLayout {
  public:
    ChartLayout(const Chart& chart, const Sheet& sheet, const TextSizes& sizes)
        : chart_(&chart), sizes_(&sizes), line_(sizes.line_height) {
        const double margin = kMargin * line_;
        inner_ = {margin, margin, sheet.width - margin, sheet.height - margin};
    }

    /// Computes the plot and the scales; false when the sheet is too small.
    bool plan() {
        title_ = brokenLines(chart_->title, inner_.width(), *sizes_);
        plot_ = inner_;
        plot_.top += static_cast<double>(title_.size()) * line_ + kRoomForMarkedText * line_;
        note_ = brokenLines(chart_->note, inner_.width(), *sizes_);
        plot_.bottom -= (2.4 + 1.1 * static_cast<double>(note_.size())) * line_;
        if (title_.empty() || plot_.height() < kLeastPlotHeight * line_) {
            return false;
        }
        planScales();
        double widest = 0;
        for (const double tick : values_.ticks()) {
            widest = std::max(widest, sizes_->width(values_.tickText(tick)));
        }
        plot_.left += widest + 0.5 * line_;
        plot_.right -= 0.5 * line_;
        const bool whole = sizes_->width(chart_->axis_text) <= inner_.width();
        axis_text_ = whole ? chart_->axis_text : chart_->axis_unit;
        return plot_.width() >= kLeastPlotWidth * line_ && sizes_->width(axis_text_) <= inner_.width() &&
               sizes_->width(chart_->marked_text, Emphasis::Strong) <= plot_.width();
    }

    Drawing draw() {
        drawing_.summary = chart_->summary;
        drawFrame();
        chart_->kind == Chart::Kind::Bars ? drawBars() : drawCurve();
        drawAxisLabels();
        drawMarkedText();
        return std::move(drawing_);
    }

  private:
    void planScales() {
        std::vector<double> values;
        for (const ChartPoint& point : chart_->points) {
            values.push_back(point.value.value_or(0.0));
        }
        // Without a tolerance no bar is higher than the last tick.
        values_ = Scale(
            values,
            {.from_zero = true, .most_steps = mostValueSteps(plot_.height(), *sizes_), .tolerance = 0.0});
        if (chart_->kind == Chart::Kind::Curve && !chart_->points.empty()) {
            positions_ =
                Scale::between(chart_->points.front().position, chart_->points.back().position, true);
        }
    }

    [[nodiscard]] double yOf(double value) const {
        return plot_.bottom - values_.share(value).value_or(0.0) * plot_.height();
    }

    [[nodiscard]] double xOf(std::size_t point) const {
        if (chart_->kind == Chart::Kind::Bars) {
            const double slot = plot_.width() / static_cast<double>(chart_->points.size());
            return plot_.left + (static_cast<double>(point) + 0.5) * slot;
        }
        const double share = positions_.share(chart_->points[point].position).value_or(0.5);
        const double inset = line_;
        return plot_.left + inset + share * (plot_.width() - 2.0 * inset);
    }

    void drawFrame() {
        double top = inner_.top;
        for (const std::string& line : title_) {
            drawing_.texts.push_back(centredText(line, (inner_.left + inner_.right) / 2.0, top, inner_.left,
                                                 inner_.right, *sizes_, Emphasis::Quiet));
            top += line_;
        }
        addValueAxis(drawing_, plot_, values_, {.label = 0.4 * line_}, *sizes_);
        const double centre = (plot_.left + plot_.right) / 2.0;
        drawing_.texts.push_back(centredText(axis_text_, centre, plot_.bottom + 1.3 * line_, inner_.left,
                                             inner_.right, *sizes_, Emphasis::Quiet));
        top = plot_.bottom + 2.4 * line_;
        for (const std::string& line : note_) {
            drawing_.texts.push_back(
                centredText(line, centre, top, inner_.left, inner_.right, *sizes_, Emphasis::Quiet));
            top += line_;
        }
    }

    void drawBars() {
        const double half = barHalf();
        for (std::size_t i = 0; i < chart_->points.size(); ++i) {
            if (!chart_->points[i].value) {
                continue;
            }
            const double x = xOf(i);
            const double y = yOf(*chart_->points[i].value);
            drawing_.areas.push_back(
                {chart_->marked == i ? Material::CriticalBar : Material::Bar,
                 {{x - half, y}, {x + half, y}, {x + half, plot_.bottom}, {x - half, plot_.bottom}}});
        }
    }

    void drawCurve() {
        PlacedLine curve{Stroke::Curve, {}};
        const double radius = kPointRadius * line_;
        for (std::size_t i = 0; i < chart_->points.size(); ++i) {
            const Point at{xOf(i), yOf(chart_->points[i].value.value_or(0.0))};
            curve.points.push_back(at);
            const double size = chart_->marked == i ? 1.6 * radius : radius;
            drawing_.ellipses.push_back({chart_->marked == i ? Material::CriticalPoint : Material::Point,
                                         {at.x - size, at.y - size, at.x + size, at.y + size}});
        }
        drawing_.lines.push_back(std::move(curve));
    }

    /// The marked label comes first, the others from the left.
    void drawAxisLabels() {
        std::vector<std::size_t> order;
        if (chart_->marked) {
            order.push_back(*chart_->marked);
        }
        for (std::size_t i = 0; i < chart_->points.size(); ++i) {
            if (chart_->marked != i) {
                order.push_back(i);
            }
        }
        LabelPlacer labels(drawing_, kLabelGap * line_);
        for (const std::size_t i : order) {
            const Emphasis emphasis = chart_->marked == i ? Emphasis::Strong : Emphasis::Plain;
            PlacedText text = centredText(chart_->points[i].label, xOf(i), plot_.bottom + 0.2 * line_,
                                          plot_.left, inner_.right, *sizes_, emphasis);
            if (text.box.width() <= inner_.right - plot_.left) {
                labels.place(std::move(text));
            }
        }
    }

    /// Places the marked value above its bar and above the neighbours that it covers, or to the right of its
    /// point of a curve.
    void drawMarkedText() {
        if (!chart_->marked) {
            return;
        }
        const double x = xOf(*chart_->marked);
        const double width = sizes_->width(chart_->marked_text, Emphasis::Strong);
        const double most_left = plot_.right - width;
        double left = std::clamp(x + 0.5 * line_, plot_.left, most_left);
        double y = yOf(chart_->points[*chart_->marked].value.value_or(0.0));
        if (chart_->kind == Chart::Kind::Bars) {
            // Of the centred, the left-aligned and the right-aligned place, the lowest one.
            const double half = barHalf();
            double lowest = plot_.top - line_;
            for (const double wanted : {x - width / 2.0, x - half, x + half - width}) {
                const double tried = std::clamp(wanted, plot_.left, most_left);
                const double top = topOfBars(tried, tried + width);
                if (top > lowest) {
                    lowest = top;
                    left = tried;
                }
            }
            y = lowest;
        }
        const double top = y - 1.15 * line_;
        drawing_.texts.push_back(
            {{left, top, left + width, top + line_}, chart_->marked_text, Emphasis::Strong});
    }

    [[nodiscard]] double barHalf() const {
        return kBarShare / 2.0 * plot_.width() / static_cast<double>(chart_->points.size());
    }

    /// The top of the highest bar between two x positions.
    [[nodiscard]] double topOfBars(double left, double right) const {
        double top = plot_.bottom;
        for (const PlacedArea& bar : drawing_.areas) {
            if (bar.corners.front().x < right && left < bar.corners[1].x) {
                top = std::min(top, bar.corners.front().y);
            }
        }
        return top;
    }

    const Chart* chart_;
    const TextSizes* sizes_;
    double line_;
    Box inner_;
    Box plot_;
    std::vector<std::string> title_;
    std::vector<std::string> note_;
    std::string axis_text_;
    Scale values_ = Scale::between(0.0, 1.0, false);
    Scale positions_ = Scale::between(0.0, 1.0, false);  ///< of a curve's points
    Drawing drawing_;
};

}  // namespace

Drawing arrange(const Chart& chart, const Sheet& sheet, const TextSizes& sizes) {
    ChartLayout layout(chart, sheet, sizes);
    if (chart.drawable() && layout.plan()) {
        return layout.draw();
    }
    Drawing drawing = onlyText(chart.hint, sheet, sizes);
    drawing.summary = chart.summary;
    return drawing;
}

}  // namespace mero::picture
