// SPDX-License-Identifier: MIT
/// A small chart over the rains of the design rain table: bars, or a curve over a logarithmic axis.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace mero::picture {

struct ChartPoint {
    std::string label;            ///< below the axis
    double position = 0;          ///< on the axis of a curve, > 0; bars stand side by side
    std::optional<double> value;  ///< empty: nothing is drawn there
};

struct Chart {
    enum class Kind { Bars, Curve };

    Kind kind = Kind::Bars;
    std::string title;
    std::vector<ChartPoint> points;
    std::optional<std::size_t> marked;
    std::string marked_text;  ///< the value of the marked point
    std::string axis_text;    ///< what the labels below the axis mean
    std::string axis_unit;    ///< instead of it where there is little room
    std::string note;         ///< below all, when there is something to say
    std::string summary;
    std::string hint;  ///< instead of a chart

    [[nodiscard]] bool drawable() const { return hint.empty(); }
};

}  // namespace mero::picture
