// SPDX-License-Identifier: MIT
/// Lays out line charts: titles above the plot, the legend on its right, labels below and on the left.
/// The margins are fixed in lines of text, so charts of one sheet size have their axes in the same place.
#include <algorithm>
#include <utility>

#include "picture/arrange.h"
#include "picture/chart_parts.h"
#include "picture/line_style.h"
#include "picture/text_lines.h"

namespace mero::picture {
namespace {

// Distances in lines of text.
constexpr double kLeftMargin = 5.625;
constexpr double kTopMargin = 4.0;
constexpr double kRightMargin = 16.875;
constexpr double kBottomMargin = 4.75;
constexpr double kEdge = 0.5;  ///< texts keep away from the sheet's edge
constexpr double kLeastPlotWidth = 10.0;
constexpr double kLeastPlotHeight = 5.0;
constexpr double kTitleMiddle = 1.38;     ///< from the top
constexpr double kSubtitleMiddle = 2.72;  ///< of its first line, from the top
constexpr double kAcrossMiddle = 2.72;    ///< of the horizontal axis' label, below the plot
constexpr double kUpwardsMiddle = 1.09;   ///< of the vertical axis' label, from the left
constexpr double kTickLength = 0.375;
constexpr double kTickTextGap = 0.625;
constexpr double kTickTextBelow = 0.6;
constexpr double kLabelGap = 0.35;
constexpr double kLinesPerStep = 5.0;
constexpr double kLegendGap = 1.5;
constexpr double kLegendRow = 1.125;
constexpr double kLegendLine = 2.125;
constexpr double kLegendText = 2.625;

constexpr double kTitleSize = 17.0 / 13.0;
constexpr double kLegendSize = 12.0 / 13.0;
constexpr int kMostSteps = 6;
/// A line with more marks would be illegible.
constexpr std::size_t kMostMarks = 25;

Scale valueScale(const LineChart& chart, const ScaleOptions& options) {
    std::vector<double> values;
    for (const Series& series : chart.series) {
        for (const auto& value : series.values) {
            if (value) {
                values.push_back(*value);
            }
        }
    }
    return Scale(values, options);
}

class LineChartLayout {
  public:
    LineChartLayout(const LineChart& chart, const Sheet& sheet, const TextSizes& sizes)
        : chart_(&chart), sheet_(sheet), sizes_(&sizes), line_(sizes.line_height) {}

    /// Computes the plot and the scales; false when the sheet is too small.
    bool plan() {
        plot_ = {lines(kLeftMargin), lines(kTopMargin), sheet_.width - lines(kRightMargin),
                 sheet_.height - lines(kBottomMargin)};
        subtitle_ = brokenLines(chart_->subtitle, sheet_.width - plot_.left - lines(kEdge), *sizes_);
        if (subtitle_.size() > 1) {
            plot_.top += static_cast<double>(subtitle_.size() - 1) * line_;
        }
        if (plot_.width() < lines(kLeastPlotWidth) || plot_.height() < lines(kLeastPlotHeight)) {
            return false;
        }
        const int most_steps =
            std::clamp(static_cast<int>(plot_.width() / lines(kLinesPerStep)), 1, kMostSteps);
        x_ = Scale(chart_->x_values, {.logarithmic = chart_->x.logarithmic, .most_steps = most_steps});
        y_ = valueScale(*chart_, {.logarithmic = chart_->y.logarithmic,
                                  .from_zero = true,
                                  .most_steps = mostValueSteps(plot_.height(), *sizes_)});
        return true;
    }

    Drawing draw() {
        drawing_.summary = chart_->summary;
        drawTitles();
        drawFineGrid();
        drawAcross();
        addValueAxis(drawing_, plot_, y_, {.tick = lines(kTickLength), .label = lines(kTickTextGap)},
                     *sizes_);
        // The axes lie above the grid.
        std::stable_partition(drawing_.lines.begin(), drawing_.lines.end(),
                              [](const PlacedLine& line) { return line.stroke != Stroke::Axis; });
        for (std::size_t n = 0; n < chart_->series.size(); ++n) {
            drawSeries(n);
        }
        drawLegend();
        return std::move(drawing_);
    }

  private:
    [[nodiscard]] double lines(double count) const { return count * line_; }
    [[nodiscard]] double acrossAt(double share) const { return plot_.left + share * plot_.width(); }
    [[nodiscard]] double downAt(double share) const { return plot_.bottom - share * plot_.height(); }

    /// A text that starts at `left`; dropped when it would leave the sheet.
    void addText(double left, double middle, PlacedText text) {
        const double width = sizes_->width(text.text, text.emphasis) * text.size;
        const double height = line_ * text.size;
        text.box = {left, middle - height / 2.0, left + width, middle + height / 2.0};
        text.align = Align::Left;
        if (!text.text.empty() && text.box.right <= sheet_.width && text.box.bottom <= sheet_.height) {
            drawing_.texts.push_back(std::move(text));
        }
    }

    void drawTitles() {
        addText(plot_.left, lines(kTitleMiddle),
                {.text = chart_->title, .emphasis = Emphasis::Strong, .size = kTitleSize});
        double middle = lines(kSubtitleMiddle);
        for (const std::string& text : subtitle_) {
            addText(plot_.left, middle, {.text = text, .emphasis = Emphasis::Quiet});
            middle += line_;
        }
        if (!chart_->x.label.empty() && sizes_->width(chart_->x.label) <= sheet_.width - 2.0 * lines(kEdge)) {
            drawing_.texts.push_back(centredText(chart_->x.label, acrossAt(0.5),
                                                 plot_.bottom + lines(kAcrossMiddle - 0.5), lines(kEdge),
                                                 sheet_.width - lines(kEdge), *sizes_, Emphasis::Plain));
        }
        const double length = sizes_->width(chart_->y.label);
        const double centre = lines(kUpwardsMiddle);
        const double top = std::clamp(downAt(0.5) - length / 2.0, 0.0, std::max(0.0, sheet_.height - length));
        if (!chart_->y.label.empty() && length <= sheet_.height) {
            drawing_.texts.push_back({.box = {centre - line_ / 2.0, top, centre + line_ / 2.0, top + length},
                                      .text = chart_->y.label,
                                      .upright = true});
        }
    }

    void drawFineGrid() {
        for (const double tick : x_.fineTicks()) {
            const double x = acrossAt(x_.share(tick).value_or(0.0));
            drawing_.lines.push_back({Stroke::FineGridLine, {{x, plot_.top}, {x, plot_.bottom}}});
        }
        for (const double tick : y_.fineTicks()) {
            const double y = downAt(y_.share(tick).value_or(0.0));
            drawing_.lines.push_back({Stroke::FineGridLine, {{plot_.left, y}, {plot_.right, y}}});
        }
    }

    /// The vertical grid lines with the values of the ticks below; the leftmost line is the axis.
    void drawAcross() {
        LabelPlacer labels(drawing_, lines(kLabelGap));
        for (const double tick : x_.ticks()) {
            const double share = x_.share(tick).value_or(0.0);
            const double x = acrossAt(share);
            drawing_.lines.push_back({share > 0 ? Stroke::GridLine : Stroke::Axis,
                                      {{x, plot_.top}, {x, plot_.bottom + lines(kTickLength)}}});
            labels.place(centredText(x_.tickText(tick), x, plot_.bottom + lines(kTickTextBelow), 0.0,
                                     sheet_.width, *sizes_, Emphasis::Plain));
        }
    }

    /// A line of one point stays invisible; the mark shows it.
    void drawSeries(std::size_t n) {
        const Series& series = chart_->series[n];
        const std::size_t mark_every = chart_->x_values.size() / kMostMarks + 1;
        PlacedLine line{Stroke::Series, {}, n};
        const auto finish = [&] {
            if (!line.points.empty()) {
                drawing_.lines.push_back(line);
                line.points.clear();
            }
        };
        for (std::size_t i = 0; i < chart_->x_values.size(); ++i) {
            const auto value = series.values[i] ? y_.share(*series.values[i]) : std::nullopt;
            const auto place = x_.share(chart_->x_values[i]);
            if (!value || !place) {
                finish();
                continue;
            }
            const Point at{acrossAt(*place), downAt(*value)};
            line.points.push_back(at);
            if (i % mark_every == 0) {
                drawing_.marks.push_back({n, at, markRadius(line_)});
            }
        }
        finish();
    }

    void drawLegend() {
        if (chart_->legend.empty()) {
            return;
        }
        const double left = plot_.right + lines(kLegendGap);
        const double room = (sheet_.width - lines(kEdge) - left) / kLegendSize;
        double middle = plot_.top;
        for (const std::string& text : brokenLines(chart_->legend, room, *sizes_, Emphasis::Strong)) {
            addText(left, middle, {.text = text, .emphasis = Emphasis::Strong, .size = kLegendSize});
            middle += lines(kLegendRow);
        }
        for (std::size_t n = 0; n < chart_->series.size(); ++n) {
            if (middle + line_ / 2.0 > sheet_.height) {
                return;
            }
            drawing_.lines.push_back(
                {Stroke::Series, {{left, middle}, {left + lines(kLegendLine), middle}}, n});
            drawing_.marks.push_back({n, {left + lines(kLegendLine / 2.0), middle}, markRadius(line_)});
            addText(left + lines(kLegendText), middle, {.text = chart_->series[n].name, .size = kLegendSize});
            middle += lines(kLegendRow);
        }
    }

    const LineChart* chart_;
    Sheet sheet_;
    const TextSizes* sizes_;
    double line_;
    Box plot_;
    std::vector<std::string> subtitle_;
    Scale x_ = Scale::between(0.0, 1.0, false);
    Scale y_ = Scale::between(0.0, 1.0, false);
    Drawing drawing_;
};

}  // namespace

Drawing arrange(const LineChart& chart, const Sheet& sheet, const TextSizes& sizes) {
    LineChartLayout layout(chart, sheet, sizes);
    if (layout.plan()) {
        return layout.draw();
    }
    Drawing drawing;
    drawing.summary = chart.summary;
    return drawing;
}

}  // namespace mero::picture
