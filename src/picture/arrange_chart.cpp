// SPDX-License-Identifier: MIT
/// Setting out of charts: a linear axis from zero with round numbers, labels only where they have room.
#include <algorithm>
#include <cmath>
#include <utility>

#include "picture/arrange.h"
#include "picture/text_lines.h"
#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

constexpr double kMargin = 0.4;        ///< around everything [lines]
constexpr double kLeastPlotWidth = 7;  ///< below that there is no chart [lines]
constexpr double kLeastPlotHeight = 2.5;
constexpr double kRoomForMarkedText = 1.4;
constexpr double kLinesPerTick = 1.5;
constexpr double kBarShare = 0.62;
constexpr double kPointRadius = 0.22;
constexpr double kLabelGap = 0.35;

/// The round step, 1, 2 or 5 times a power of ten, that divides the range into at most `most_steps`.
double roundStep(double range, int most_steps) {
    const double power = std::pow(10.0, std::floor(std::log10(range / most_steps)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (range <= factor * power * most_steps) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

class ChartLayout {
  public:
    ChartLayout(const Chart& chart, const Sheet& sheet, const TextSizes& sizes)
        : chart_(&chart), sizes_(&sizes), line_(sizes.line_height) {
        const double margin = kMargin * line_;
        inner_ = {margin, margin, sheet.width - margin, sheet.height - margin};
    }

    /// Finds the places; false when the sheet is too small.
    bool plan() {
        title_ = brokenLines(chart_->title, inner_.width(), *sizes_);
        plot_ = inner_;
        plot_.top += static_cast<double>(title_.size()) * line_ + kRoomForMarkedText * line_;
        note_ = brokenLines(chart_->note, inner_.width(), *sizes_);
        plot_.bottom -= (2.4 + 1.1 * static_cast<double>(note_.size())) * line_;
        if (title_.empty() || plot_.height() < kLeastPlotHeight * line_) {
            return false;
        }
        planTicks();
        double widest = 0;
        for (const auto& [value, text] : ticks_) {
            widest = std::max(widest, sizes_->width(text));
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
    void planTicks() {
        double largest = 0;
        for (const ChartPoint& point : chart_->points) {
            largest = std::max(largest, point.value.value_or(0.0));
        }
        const int most = std::clamp(static_cast<int>(plot_.height() / (kLinesPerTick * line_)), 1, 6);
        const double step = roundStep(largest, most);
        for (int k = 0; k == 0 || top_value_ < largest; ++k) {
            top_value_ = k * step;
            // Through a Single: its shortest text hides what the multiplication left behind.
            ticks_.emplace_back(top_value_, numbers::general(static_cast<float>(top_value_)));
        }
    }

    [[nodiscard]] double yOf(double value) const {
        return plot_.bottom - value / top_value_ * plot_.height();
    }

    [[nodiscard]] double xOf(std::size_t point) const {
        if (chart_->kind == Chart::Kind::Bars) {
            const double slot = plot_.width() / static_cast<double>(chart_->points.size());
            return plot_.left + (static_cast<double>(point) + 0.5) * slot;
        }
        const double first = std::log(chart_->points.front().position);
        const double range = std::log(chart_->points.back().position) - first;
        const double share = range > 0 ? (std::log(chart_->points[point].position) - first) / range : 0.5;
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
        for (const auto& [value, text] : ticks_) {
            const double y = yOf(value);
            drawing_.lines.push_back(
                {value > 0 ? Stroke::GridLine : Stroke::Axis, {{plot_.left, y}, {plot_.right, y}}});
            const double right = plot_.left - 0.4 * line_;
            drawing_.texts.push_back({{right - sizes_->width(text), y - line_ / 2.0, right, y + line_ / 2.0},
                                      text,
                                      Emphasis::Plain});
        }
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

    /// The marked label first, then from the left those that find room.
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
        std::vector<Box> taken;
        for (const std::size_t i : order) {
            const Emphasis emphasis = chart_->marked == i ? Emphasis::Strong : Emphasis::Plain;
            PlacedText text = centredText(chart_->points[i].label, xOf(i), plot_.bottom + 0.2 * line_,
                                          plot_.left, inner_.right, *sizes_, emphasis);
            const double gap = kLabelGap * line_;
            const bool free = std::none_of(taken.begin(), taken.end(), [&](const Box& box) {
                return text.box.left < box.right + gap && box.left < text.box.right + gap;
            });
            if (free && text.box.width() <= inner_.right - plot_.left) {
                taken.push_back(text.box);
                drawing_.texts.push_back(std::move(text));
            }
        }
    }

    /// Above its bar and those beside it that it reaches over; beside its point where the curve has fallen.
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
            // Of centred, to the right and to the left the one that stays nearest to its bar.
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

    /// The highest point of the bars between two places.
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
    std::vector<std::pair<double, std::string>> ticks_;
    double top_value_ = 0;
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
