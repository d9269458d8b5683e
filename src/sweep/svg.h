// SPDX-License-Identifier: MIT
/// A line chart as SVG: axes with units, a scale of round numbers, one line per series.
/// Black and dark lines that differ by dashes and marks, so that a copy on paper can be read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace mero::sweep {

struct Axis {
    std::string label;  ///< with its unit
    bool logarithmic = false;
};

struct Series {
    std::string name;  ///< for the legend
    /// One value for each x; none interrupts the line.
    std::vector<std::optional<double>> values;
};

struct Chart {
    std::string title;
    std::string subtitle;
    Axis x;
    Axis y;
    std::vector<double> x_values;
    std::string legend;  ///< heading of the legend, empty for a chart without one
    std::vector<Series> series;
};

/// Most lines that can be told apart.
inline constexpr std::size_t kMostSeries = 24;

/// The whole document in UTF-8. Values that a logarithmic axis cannot show interrupt the line.
[[nodiscard]] std::string svg(const Chart& chart);

}  // namespace mero::sweep
