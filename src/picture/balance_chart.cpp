// SPDX-License-Identifier: MIT
/// Makes the charts with the formulas of the searches for the critical rain.
/// So the highest bar belongs to the critical rain.
#include "picture/balance_chart.h"

#include <algorithm>

#include "calc/surface_infiltration.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"

namespace mero::picture {
namespace {

/// No facility is larger, and the axis texts would fill the chart.
constexpr double kLargestShown = 1e7;
/// Smaller values are not drawn.
constexpr double kSmallestShown = 1e-6;

/// Title, unit and decimals of a facility's chart; the decimals are those of the result's field.
struct Quantity {
    std::string_view title;
    std::string_view unit;
    int decimals;
};

Chart hintChart(std::string_view hint) {
    Chart chart;
    chart.hint = hint;
    chart.summary = chart.hint;
    return chart;
}

Chart beforeResults() {
    return hintChart("Bilance dešťů se nakreslí po výpočtu.");
}

Chart oddValues() {
    return hintChart("Z těchto hodnot nelze bilanci dešťů nakreslit.");
}

/// Row of the critical rain in the table.
std::optional<std::size_t> rowOf(const calc::RainValues& values, const calc::CriticalRain& critical) {
    if (!critical.rain) {
        return std::nullopt;
    }
    const auto row = std::find(values.begin(), values.end(), std::optional<double>(critical.maximum));
    return static_cast<std::size_t>(row - values.begin());
}

/// Bars of the positive values; a hint when there are none.
Chart barChart(const Quantity& quantity, const calc::RainValues& values, calc::RainTable rains) {
    Chart chart;
    chart.title = std::string(quantity.title) + " [" + std::string(quantity.unit) + "]";
    chart.axis_text = "doba trvání deště [min]";
    chart.axis_unit = "[min]";
    bool any = false;
    for (std::size_t row = 0; row < values.size(); ++row) {
        if (values[row] && !(*values[row] <= kLargestShown)) {
            return oddValues();
        }
        const bool asks = values[row] && *values[row] >= kSmallestShown;
        any = any || asks;
        chart.points.push_back(
            {numbers::general(rains[row].duration_min), 0.0, asks ? values[row] : std::optional<double>()});
    }
    chart.summary = chart.title + ".";
    return any ? chart : hintChart("Žádný déšť nevyžaduje akumulaci.");
}

/// Marks the critical rain; adds a note when its value differs from the field's.
void mark(Chart& chart, const Quantity& quantity, std::size_t row, const std::string& shown_result) {
    const ChartPoint& point = chart.points[row];
    const std::string value = numbers::fixed(*point.value, quantity.decimals);
    chart.marked = row;
    chart.marked_text = value + " " + std::string(quantity.unit);
    chart.summary = chart.title + ": rozhoduje déšť " + point.label + " min, " + chart.marked_text + ".";
    if (value != shown_result) {
        chart.note = "vstupy se od výpočtu změnily";
    }
}

template <typename PerRain>
Chart searchedChart(const Quantity& quantity, const PerRain& per_rain, calc::RainTable rains,
                    const std::string& shown_result) {
    if (shown_result.empty()) {
        return beforeResults();
    }
    try {
        const calc::RainValues values = per_rain.values(rains);
        Chart chart = barChart(quantity, values, rains);
        const auto row = rowOf(values, per_rain.critical(rains));
        if (row && chart.drawable() && chart.points[*row].value) {
            mark(chart, quantity, *row, shown_result);
        }
        return chart;
    } catch (const RuntimeError&) {
        return oddValues();
    }
}

constexpr Quantity kArea{"Plocha", "m²", 1};
constexpr Quantity kSwaleVolume{"Objem akumulace průlehu", "m³", 1};
constexpr Quantity kLength{"Délka rýhy", "m", 1};
constexpr Quantity kLevel{"Výška vzdutí", "m", 2};
constexpr Quantity kTankVolume{"Objem akumulace", "m³", 2};

}  // namespace

Chart surfaceChart(const SurfaceBalance& balance, calc::RainTable rains, const std::string& shown_result) {
    if (shown_result.empty() || !(balance.picked_rain.intensity_l_s_ha > 0)) {
        return beforeResults();
    }
    calc::RainValues values;
    for (std::size_t row = 0; row < values.size(); ++row) {
        try {
            values[row] = calc::surface::infiltrationArea(balance.reduced_area_m2, balance.filtration_m_s,
                                                          rains[row].intensity_l_s_ha);
        } catch (const RuntimeError&) {
            continue;  // the formula has no result for this rain
        }
    }
    Chart chart = barChart(kArea, values, rains);
    const auto picked = std::find(rains.begin(), rains.end(), balance.picked_rain);
    const auto row = static_cast<std::size_t>(picked - rains.begin());
    if (picked != rains.end() && chart.drawable() && chart.points[row].value) {
        mark(chart, kArea, row, shown_result);
    }
    return chart;
}

Chart swaleChart(const calc::swale::Balance& balance, calc::RainTable rains,
                 const std::string& shown_result) {
    return searchedChart(kSwaleVolume, calc::swale::volumePerRain(balance), rains, shown_result);
}

Chart swaleTrenchChart(const SwaleTrenchBalance& balance, calc::RainTable rains,
                       const std::string& shown_volume, const std::string& shown_length) {
    const auto per_rain = calc::swale_trench::lengthPerRain(balance.trench);
    try {
        if (!shown_length.empty() && !per_rain.critical(rains).rain) {
            return swaleChart(balance.swale, rains, shown_volume);
        }
    } catch (const RuntimeError&) {
        return oddValues();
    }
    return searchedChart(kLength, per_rain, rains, shown_length);
}

Chart trenchChart(const calc::trench::Balance& balance, calc::RainTable rains,
                  const std::string& shown_length) {
    return searchedChart(kLength, calc::trench::lengthPerRain(balance), rains, shown_length);
}

Chart shaftChart(const calc::shaft::Balance& balance, calc::RainTable rains, const std::string& shown_level) {
    return searchedChart(kLevel, calc::shaft::levelPerRain(balance), rains, shown_level);
}

Chart tankChart(const calc::tank::Balance& balance, calc::RainTable rains, const std::string& shown_volume) {
    return searchedChart(kTankVolume, calc::tank::storagePerRain(balance), rains, shown_volume);
}

}  // namespace mero::picture
