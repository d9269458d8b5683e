// SPDX-License-Identifier: MIT
/// Chooses what to draw and designs the variants of the plot.
/// Their results are not taken from the rows, which may be written without a plot.
#include "sweep/plot.h"

#include <algorithm>
#include <optional>

#include "picture/arrange.h"
#include "picture/svg_painter.h"

namespace mero::sweep {
namespace {

using design::Quantity;
using picture::kMostSeries;
using picture::Series;

/// The most points of one line; all values are kept in memory.
constexpr std::size_t kMostPoints = 2000;
/// Ratio of the largest to the smallest result from which the axis is logarithmic.
constexpr double kWideSpread = 50.0;
constexpr picture::Sheet kSheet_px{900.0, 560.0};

Quantity mainResult(design::FacilityType type) {
    switch (type) {
        case design::FacilityType::None:
            break;
        case design::FacilityType::Surface:
            return Quantity::InfiltrationArea;
        case design::FacilityType::SwaleTrench:
        case design::FacilityType::Trench:
            return Quantity::TrenchLength;
        case design::FacilityType::Shaft:
            return Quantity::WaterDepth;
        case design::FacilityType::Swale:
        case design::FacilityType::Tank:
            break;
    }
    return Quantity::StorageVolume;
}

struct PlotPlan {
    std::size_t over = 0;
    std::optional<std::size_t> lines;
    Quantity result = Quantity::StorageVolume;
};

std::size_t find(const Variants& variants, const std::string& path) {
    const auto& all = variants.variations();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Variation& each) { return each.path() == path; });
    if (found == all.end()) {
        throw VariationError(path + ": is not varied, so nothing can be drawn over it");
    }
    return static_cast<std::size_t>(found - all.begin());
}

bool typesDiffer(const Variants& variants, const PlotPlan& plan) {
    return plan.lines && variants.variations()[*plan.lines].path() == info(design::Input::Type).path;
}

Quantity resultOf(const Variants& variants, const PlotWish& wish, const PlotPlan& plan) {
    if (wish.result.empty()) {
        return typesDiffer(variants, plan) ? Quantity::StorageVolume
                                           : mainResult(VariantWalk(variants, 0).inputs().facility.type);
    }
    std::vector<std::string> names;
    for (const design::QuantityInfo& quantity : design::quantities()) {
        if (wish.result == quantity.name) {
            return quantity.quantity;
        }
        names.emplace_back(quantity.name);
    }
    const std::string near = project::nearestName(wish.result, names);
    throw VariationError(wish.result + ": is no result" +
                         (near.empty() ? "" : "; did you mean \"" + near + "\"?"));
}

PlotPlan planOf(const Variants& variants, const PlotWish& wish) {
    const auto& all = variants.variations();
    PlotPlan plan;
    if (!wish.over.empty()) {
        plan.over = find(variants, wish.over);
    } else {
        const auto first = std::find_if(all.begin(), all.end(), [&](const Variation& each) {
            return each.isNumeric() && each.size() > 1 && each.path() != wish.lines;
        });
        if (first == all.end()) {
            throw VariationError("nothing to draw over: vary a number with at least two values");
        }
        plan.over = static_cast<std::size_t>(first - all.begin());
    }
    if (!all[plan.over].isNumeric()) {
        throw VariationError(all[plan.over].path() + ": is no number, so it cannot be an axis");
    }
    if (!wish.lines.empty()) {
        plan.lines = find(variants, wish.lines);
    } else if (all.size() > 1) {
        plan.lines = plan.over == 0 ? 1 : 0;
    }
    if (plan.lines == plan.over) {
        throw VariationError(wish.lines + ": cannot be the axis and the lines at once");
    }
    if (all[plan.over].size() > kMostPoints || (plan.lines && all[*plan.lines].size() > kMostSeries)) {
        throw VariationError("a plot has at most 2000 points on a line and 24 lines");
    }
    plan.result = resultOf(variants, wish, plan);
    return plan;
}

std::string withUnit(const std::string& label, const std::string& unit) {
    return unit.empty() ? label : label + " [" + unit + "]";
}

/// The varied values that are neither axis nor lines: "Typ vsakování = trench".
std::string heldValues(const Variants& variants, const PlotPlan& plan) {
    std::string text;
    const auto& all = variants.variations();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (i != plan.over && i != plan.lines) {
            text += (text.empty() ? "" : ", ") + all[i].label() + " = " + all[i].text(0) +
                    (all[i].unit().empty() ? "" : " " + all[i].unit());
        }
    }
    return text;
}

bool spreadsWidely(const std::vector<Series>& series) {
    double low = 0.0;
    double high = 0.0;
    for (const Series& each : series) {
        for (const auto& value : each.values) {
            if (value && *value <= 0.0) {
                return false;
            }
            if (value) {
                low = low == 0.0 ? *value : std::min(low, *value);
                high = std::max(high, *value);
            }
        }
    }
    return low > 0.0 && high / low >= kWideSpread;
}

}  // namespace

void checkPlot(const Variants& variants, const PlotWish& wish) {
    static_cast<void>(planOf(variants, wish));
}

Chart plotOf(const Variants& variants, const project::RainStore& rain, const PlotWish& wish) {
    const PlotPlan plan = planOf(variants, wish);
    const auto& all = variants.variations();
    const Variation& over = all[plan.over];
    const design::QuantityInfo& result = design::info(plan.result);
    Chart chart;
    // Panels may call a result differently.
    const char* caption =
        typesDiffer(variants, plan)
            ? result.caption
            : design::captionOf(plan.result, VariantWalk(variants, 0).inputs().facility.type);
    chart.title = caption;
    chart.subtitle = heldValues(variants, plan);
    chart.x = {withUnit(over.label(), over.unit()), over.isLogarithmic()};
    chart.y.label = withUnit(caption, result.unit);
    for (std::size_t i = 0; i < over.size(); ++i) {
        chart.x_values.push_back(over.magnitude(i));
    }
    std::vector<std::size_t> positions(all.size());
    const std::size_t lines = plan.lines ? all[*plan.lines].size() : 1;
    for (std::size_t n = 0; n < lines; ++n) {
        Series& series = chart.series.emplace_back();
        if (plan.lines) {
            positions[*plan.lines] = n;
            series.name = all[*plan.lines].text(n);
        }
        for (std::size_t i = 0; i < over.size(); ++i) {
            positions[plan.over] = i;
            const design::DesignResult designed = VariantWalk(variants, positions).design(rain);
            series.values.push_back(designed.has(plan.result)
                                        ? std::optional(static_cast<double>(designed.value(plan.result)))
                                        : std::nullopt);
        }
    }
    // A type without this result has no line.
    std::erase_if(chart.series, [](const Series& series) {
        return std::none_of(series.values.begin(), series.values.end(),
                            [](const std::optional<double>& value) { return value.has_value(); });
    });
    if (plan.lines) {
        chart.legend = withUnit(all[*plan.lines].label(), all[*plan.lines].unit());
    }
    chart.y.logarithmic = over.isLogarithmic() && spreadsWidely(chart.series);
    return chart;
}

std::string plotSvg(const Chart& chart) {
    return picture::svgDocument(picture::arrange(chart, kSheet_px, picture::svgTextSizes()), kSheet_px);
}

}  // namespace mero::sweep
