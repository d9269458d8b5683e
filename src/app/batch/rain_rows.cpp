// SPDX-License-Identifier: MIT
/// Chooses the durations and prints the rows.
#include "app/batch/rain_rows.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "app/common/command_line.h"
#include "platform/numbers/number_text.h"
#include "project/project.h"
#include "project/read_project.h"

namespace mero::app {
namespace {

using nlohmann::ordered_json;
using rain::CurveRow;
using rain::RowOrigin;

std::array<double, rain::kRows> durationsFor(const rain::RainCurve& curve, const std::string& set) {
    if (!set.empty()) {
        const rain::DurationSet* found = rain::findDurationSet(set);
        if (found == nullptr) {
            throw UsageError("--durations: no such set: " + set + " (there are: classic, 6h, 24h, 72h)");
        }
        return found->durations_min;
    }
    std::array<double, rain::kRows> durations{};
    if (curve.points().size() == rain::kRows) {
        std::ranges::transform(curve.points(), durations.begin(), &rain::CurvePoint::duration_min);
        return durations;
    }
    const rain::DurationSet* covered = rain::coveredSet(curve);
    if (covered == nullptr) {
        throw UsageError("the source knows the rows of no set of durations: " +
                         numbers::general(curve.points().front().duration_min) + " to " +
                         numbers::general(curve.points().back().duration_min) + " min");
    }
    return covered->durations_min;
}

std::string rightAligned(const std::string& text, std::size_t columns) {
    return std::string(columns > text.size() ? columns - text.size() : 0, ' ') + text;
}

ordered_json fittedJson(const RainRows& rain) {
    ordered_json list = ordered_json::array();
    for (std::size_t at = 0; at < rain.fitted.size(); ++at) {
        const rain::FittedDepth& depth = rain.fitted[at];
        ordered_json maxima = ordered_json::object();
        for (const rain::YearMaximum& maximum : rain.extremes[at].annual) {
            maxima[numbers::general(maximum.year)] = maximum.depth_mm;
        }
        list.push_back({{"duration_min", depth.duration_min},
                        {"depth_mm", depth.depth_mm},
                        {"lower_mm", depth.bounds_mm.lower},
                        {"upper_mm", depth.bounds_mm.upper},
                        {"annual_maxima_mm", maxima},
                        {"peaks_mm", rain.extremes[at].peaks_mm}});
    }
    return list;
}

ordered_json rowValues(const RainRows& rain, double rain::CurvePoint::*member) {
    ordered_json list = ordered_json::array();
    for (const CurveRow& row : rain.rows) {
        list.push_back(row.point.*member);
    }
    return list;
}

/// The periodicity of the list that belongs to a return period; none when the list has none.
std::optional<float> periodicityOf(double return_period_years) {
    constexpr double kTolerance = 1e-6;
    for (const float periodicity : project::reference().Periodicita) {
        const double years = 1.0 / static_cast<double>(periodicity);
        if (std::abs(years - return_period_years) < kTolerance * years) {
            return periodicity;
        }
    }
    return std::nullopt;
}

}  // namespace

std::array<CurveRow, rain::kRows> chosenRows(const rain::RainCurve& curve, const std::string& set,
                                             double surcharge_percent) {
    constexpr double kPercent = 100.0;
    auto rows = rain::rowsOf(curve, durationsFor(curve, set));
    std::string missing;
    for (CurveRow& row : rows) {
        if (row.origin == RowOrigin::Missing) {
            missing += (missing.empty() ? "" : ", ") + numbers::general(row.point.duration_min);
        }
        row.point.intensity_l_s_ha *= 1.0 + surcharge_percent / kPercent;
    }
    if (!missing.empty()) {
        throw UsageError("the source has no rain of " + missing + " min (see --durations)");
    }
    return rows;
}

std::string rainTableText(const RainRows& rain) {
    constexpr std::size_t kColumns = 10;
    std::string text = rain.source + "\n";
    if (rain.surcharge_percent != 0.0) {
        text += "Přirážka na klima: " + numbers::general(rain.surcharge_percent) + " %\n";
    }
    text += "\n" + rightAligned("min", kColumns) + rightAligned("l/(s.ha)", kColumns) +
            rightAligned("mm", kColumns) + "\n";
    for (const CurveRow& row : rain.rows) {
        const auto& [duration, intensity] = row.point;
        text += rightAligned(numbers::general(duration), kColumns) +
                rightAligned(numbers::fixed(intensity, 1), kColumns) +
                rightAligned(numbers::fixed(rain::depthOfIntensity(intensity, duration), 1), kColumns) +
                (row.origin == RowOrigin::Interpolated ? "  interpolováno\n" : "\n");
    }
    if (!rain.fitted.empty()) {
        text += "\nPoužito let: " + numbers::general(static_cast<int>(rain.years_used)) + "\n" +
                rightAligned("min", kColumns) + rightAligned("mm", kColumns) +
                rightAligned("95 %", kColumns) + "\n";
        for (const rain::FittedDepth& depth : rain.fitted) {
            text += rightAligned(numbers::general(depth.duration_min), kColumns) +
                    rightAligned(numbers::fixed(depth.depth_mm, 1), kColumns) + "  " +
                    numbers::fixed(depth.bounds_mm.lower, 1) + " - " +
                    numbers::fixed(depth.bounds_mm.upper, 1) + "\n";
        }
    }
    return text;
}

std::string rainJson(const RainRows& rain) {
    ordered_json interpolated = ordered_json::array();
    for (const CurveRow& row : rain.rows) {
        interpolated.push_back(row.origin == RowOrigin::Interpolated);
    }
    ordered_json json;
    json["source"] = rain.source;
    json["return_period_years"] =
        rain.return_period_years ? ordered_json(*rain.return_period_years) : ordered_json();
    json["surcharge_percent"] = rain.surcharge_percent;
    json["durations_min"] = rowValues(rain, &rain::CurvePoint::duration_min);
    json["intensities_l_s_ha"] = rowValues(rain, &rain::CurvePoint::intensity_l_s_ha);
    json["interpolated"] = interpolated;
    if (!rain.fitted.empty()) {
        json["years_used"] = rain.years_used;
        json["fit"] = fittedJson(rain);
    }
    json["remarks"] = rain.remarks;
    return json.dump() + "\n";
}

std::string withRain(std::string_view project_json, const std::string& file, const RainRows& rain) {
    // Reads it as a design would, so that what is written is a project, too.
    static_cast<void>(project::readProject(project_json, file));
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (project_json.starts_with(kByteOrderMark)) {
        project_json.remove_prefix(kByteOrderMark.size());
    }
    ordered_json document = ordered_json::parse(project_json);
    ordered_json& values = document["rain"];
    values.erase("station");
    values["durations_min"] = rowValues(rain, &rain::CurvePoint::duration_min);
    values["intensities_l_s_ha"] = rowValues(rain, &rain::CurvePoint::intensity_l_s_ha);
    if (rain.return_period_years) {
        if (const auto periodicity = periodicityOf(*rain.return_period_years)) {
            // The shortest decimal of the Single.
            values["periodicity"] = ordered_json::parse(numbers::general(*periodicity));
        }
    }
    if (values.contains("design_duration_min") &&
        std::ranges::find(values["durations_min"], values["design_duration_min"]) ==
            values["durations_min"].end()) {
        values.erase("design_duration_min");
    }
    constexpr int kIndent = 2;
    return document.dump(kIndent) + "\n";
}

}  // namespace mero::app
