// SPDX-License-Identifier: MIT
/// Adds the value axis, and labels that keep apart.
#include "picture/chart_parts.h"

#include <algorithm>
#include <utility>

namespace mero::picture {

bool LabelPlacer::place(PlacedText label) {
    const Box& box = label.box;
    const bool free = std::none_of(taken_.begin(), taken_.end(), [&](const Box& other) {
        return box.left < other.right + gap_ && other.left < box.right + gap_ && box.top < other.bottom &&
               other.top < box.bottom;
    });
    if (free) {
        taken_.push_back(box);
        drawing_->texts.push_back(std::move(label));
    }
    return free;
}

int mostValueSteps(double height, const TextSizes& sizes) {
    constexpr double kLinesPerStep = 1.5;
    constexpr int kMostSteps = 6;
    return std::clamp(static_cast<int>(height / (kLinesPerStep * sizes.line_height)), 1, kMostSteps);
}

void addValueAxis(Drawing& drawing, const Box& plot, const Scale& scale, const AxisGaps& gaps,
                  const TextSizes& sizes) {
    LabelPlacer labels(drawing, 0.0);
    const double right = plot.left - gaps.label;
    for (const double tick : scale.ticks()) {
        const double share = *scale.share(tick);
        const double y = plot.bottom - share * plot.height();
        const std::string text = scale.tickText(tick);
        drawing.lines.push_back(
            {share > 0 ? Stroke::GridLine : Stroke::Axis, {{plot.left - gaps.tick, y}, {plot.right, y}}});
        labels.place({.box = {right - sizes.width(text), y - sizes.line_height / 2.0, right,
                              y + sizes.line_height / 2.0},
                      .text = text,
                      .align = Align::Right});
    }
}

}  // namespace mero::picture
