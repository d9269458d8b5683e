// SPDX-License-Identifier: MIT
/// A chart of several series over one axis, both axes linear or logarithmic.
/// The series differ by dashes and marks as well as by colour, so that a monochrome copy can be read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace mero::picture {

struct ChartAxis {
    std::string label;  ///< with its unit
    bool logarithmic = false;
};

struct Series {
    std::string name;  ///< for the legend
    /// One value for each x; a missing one interrupts the line.
    std::vector<std::optional<double>> values;
};

struct LineChart {
    std::string title;
    std::string subtitle;
    ChartAxis x;
    ChartAxis y;  ///< a linear one includes 0
    std::vector<double> x_values;
    std::string legend;          ///< heading of the legend; a chart without it has no legend
    std::vector<Series> series;  ///< at most kMostSeries
    std::string summary;         ///< what it shows, in a sentence
};

/// The largest number of series that differ in dashes, mark and colour.
inline constexpr std::size_t kMostSeries = 24;

}  // namespace mero::picture
