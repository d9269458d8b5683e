// SPDX-License-Identifier: MIT
/// Selects and sorts the points of the curve.
/// Typed values may be anything, so those beyond any rain are ignored.
#include "picture/rain_curve.h"

#include <algorithm>
#include <vector>

#include "platform/numbers/number_text.h"

namespace mero::picture {
namespace {

/// Far beyond any rain.
constexpr float kLongest_min = 1e6F;
constexpr float kHeaviest_l_s_ha = 1e6F;

}  // namespace

Chart rainCurve(calc::RainTable rains, const calc::Rain& picked) {
    std::vector<calc::Rain> shown;
    for (const calc::Rain& rain : rains) {
        if (rain.duration_min > 0 && rain.duration_min <= kLongest_min && rain.intensity_l_s_ha >= 0 &&
            rain.intensity_l_s_ha <= kHeaviest_l_s_ha) {
            shown.push_back(rain);
        }
    }
    std::stable_sort(shown.begin(), shown.end(), [](const calc::Rain& a, const calc::Rain& b) {
        return a.duration_min < b.duration_min;
    });
    Chart chart;
    const bool any = std::any_of(shown.begin(), shown.end(),
                                 [](const calc::Rain& rain) { return rain.intensity_l_s_ha > 0; });
    if (!any) {
        chart.hint = "Křivka se nakreslí, až budou zadány intenzity deště.";
        chart.summary = chart.hint;
        return chart;
    }
    chart.kind = Chart::Kind::Curve;
    chart.title = "Intenzita deště [l/(s.ha)]";
    chart.axis_text = "doba trvání deště [min]";
    chart.axis_unit = "[min]";
    for (const calc::Rain& rain : shown) {
        chart.points.push_back(
            {numbers::general(rain.duration_min), rain.duration_min, rain.intensity_l_s_ha});
    }
    chart.summary = "Křivka intenzit deště pro doby trvání " + chart.points.front().label + " až " +
                    chart.points.back().label + " min.";
    const auto found = std::find(shown.begin(), shown.end(), picked);
    if (found != shown.end() && picked.intensity_l_s_ha > 0) {
        chart.marked = static_cast<std::size_t>(found - shown.begin());
        chart.marked_text = numbers::general(picked.intensity_l_s_ha);
        chart.summary += " Zvolený déšť: " + numbers::general(picked.duration_min) + " min, " +
                         chart.marked_text + " l/(s.ha).";
    }
    return chart;
}

}  // namespace mero::picture
