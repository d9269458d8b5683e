// SPDX-License-Identifier: MIT
/// The nine rows of the rain table as `mero-batch rain` gives them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "rain/durations.h"
#include "rain/series_fit.h"

namespace mero::app {

struct RainRows {
    std::string source;  ///< a sentence in Czech
    std::optional<double> return_period_years;
    double surcharge_percent = 0.0;  ///< is in the intensities
    std::array<rain::CurveRow, rain::kRows> rows;
    std::vector<std::string> remarks;       ///< in Czech
    std::vector<rain::FittedDepth> fitted;  ///< of a measured series, without the surcharge
    std::vector<rain::Extremes> extremes;   ///< for each fitted duration
    std::size_t years_used = 0;
};

/// The rows of the curve: of the named set; without a name the curve's own nine durations, or else the first
/// set that it covers.
/// @param set "" for none
/// @throws UsageError when rows are missing
[[nodiscard]] std::array<rain::CurveRow, rain::kRows> chosenRows(const rain::RainCurve& curve,
                                                                 const std::string& set,
                                                                 double surcharge_percent);

/// A table for people.
[[nodiscard]] std::string rainTableText(const RainRows& rain);
/// One JSON object, with all digits.
[[nodiscard]] std::string rainJson(const RainRows& rain);

/// The project file with these rows as own values: station and demonstration go, all else stays as it is.
/// @throws project::ProjectError when the text is no project
[[nodiscard]] std::string withRain(std::string_view project_json, const std::string& file,
                                   const RainRows& rain);

}  // namespace mero::app
