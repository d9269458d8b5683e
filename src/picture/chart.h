// SPDX-License-Identifier: MIT
/// A chart over the rains of the design rain table: bars, or a curve over a logarithmic axis.
/// One point may be marked.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace mero::picture {

struct ChartPoint {
    std::string label;            ///< below the axis
    double position = 0;          ///< on the axis of a curve, > 0; ignored for bars
    std::optional<double> value;  ///< >= 0; empty: nothing is drawn there
};

struct Chart {
    enum class Kind { Bars, Curve };

    Kind kind = Kind::Bars;
    std::string title;
    std::vector<ChartPoint> points;
    std::optional<std::size_t> marked;
    std::string marked_text;  ///< the value of the marked point
    std::string axis_text;    ///< caption of the horizontal axis
    std::string axis_unit;    ///< replaces the caption where there is little room
    std::string note;         ///< below the axis; may be empty
    std::string summary;
    std::string hint;  ///< replaces the chart: why there is none

    [[nodiscard]] bool drawable() const { return hint.empty(); }
};

}  // namespace mero::picture
