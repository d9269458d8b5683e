// SPDX-License-Identifier: MIT
/// Finds fields and names, and what a project lacks.
#include "project/fields.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <utility>

#include "design/shaft_catalogue.h"

namespace mero::project {
namespace {

using design::Input;
using design::Need;

/// Names that are neither fields nor texts: the document's own, lists, objects.
constexpr auto kOtherPaths = std::to_array<std::string_view>({
    "$schema",
    "version",
    "project",
    "rain",
    "areas",
    "subsoil",
    "facility",
    "window",
    "rain.durations_min",
    "rain.intensities_l_s_ha",
    "facility.overflow",
    "facility.drain",
    "areas[].area_m2",
    "areas[].runoff_coefficient",
    "areas[].surface",
});

/// The last name of a path when it lies right in that object, else nothing.
std::string_view nameIn(std::string_view object_path, std::string_view path) {
    const std::size_t dot = path.rfind('.');
    const bool nested = dot != std::string_view::npos;
    return path.substr(0, nested ? dot : 0) == object_path ? path.substr(nested ? dot + 1 : 0)
                                                           : std::string_view();
}

/// Number of single-character changes that turn one word into the other.
std::size_t editDistance(std::string_view from, std::string_view to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= from.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t change = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, change});
        }
    }
    return row.back();
}

}  // namespace

const Field* findField(std::string_view path) {
    const auto fields = design::inputs();
    const auto found = std::ranges::find_if(fields, [&](const Field& field) { return path == field.path; });
    return found == fields.end() ? nullptr : &*found;
}

void store(const Field& field, Inputs& inputs, float value) {
    switch (field.input) {
        case Input::Station:
            inputs.rain.station = static_cast<int>(value);
            break;
        case Input::Periodicity:
            inputs.rain.periodicity = static_cast<int>(value);
            break;
        case Input::DesignDuration:
            inputs.rain.design_duration_min = value;
            inputs.rain.picks_row = true;
            break;
        case Input::Filtration:
            inputs.filtration_m_s = value;
            break;
        case Input::Groundwater:
            inputs.groundwater_depth_m = value;
            break;
        default:
            field.give(inputs.facility, value);
    }
}

float stored(const Field& field, const Inputs& inputs) {
    switch (field.input) {
        case Input::Station:
            return static_cast<float>(inputs.rain.station);
        case Input::Periodicity:
            return static_cast<float>(inputs.rain.periodicity);
        case Input::DesignDuration:
            return inputs.rain.design_duration_min;
        case Input::Filtration:
            return inputs.filtration_m_s;
        case Input::Groundwater:
            return inputs.groundwater_depth_m;
        default:
            return field.given(inputs.facility);
    }
}

std::span<const std::string> choices(const Field& field) {
    static const std::vector<std::vector<std::string>> kWords = [] {
        std::vector<std::vector<std::string>> words;
        for (const Field& each : design::inputs()) {
            auto& of_field = words.emplace_back();
            for (const design::Choice& choice : each.choices) {
                of_field.emplace_back(choice.word);
            }
        }
        for (const design::CatalogueShaft& shaft : design::shaftCatalogue()) {
            words[index(Input::CatalogueShaft)].push_back(shaft.designation);
        }
        return words;
    }();
    return kWords[index(field.input)];
}

std::vector<std::string> namesIn(std::string_view object_path) {
    std::vector<std::string_view> paths(kOtherPaths.begin(), kOtherPaths.end());
    std::ranges::transform(design::textInputs(), std::back_inserter(paths), &design::TextInputInfo::path);
    std::ranges::transform(design::inputs(), std::back_inserter(paths), &Field::path);
    std::vector<std::string> names;
    for (const std::string_view path : paths) {
        const std::string_view name = nameIn(object_path, path);
        if (!name.empty()) {
            names.emplace_back(name);
        }
    }
    return names;
}

std::string nearestName(std::string_view name, std::span<const std::string> names) {
    constexpr std::size_t kTellingBeginning = 3;
    // Far longer than any name: nothing is near it, and comparing would take its time.
    constexpr std::size_t kLongestName = 100;
    if (name.size() > kLongestName) {
        return {};
    }
    std::string nearest;
    std::size_t least = std::max<std::size_t>(2, name.size() / 3) + 1;
    for (const std::string& candidate : names) {
        // A name without its unit is as good as right.
        const bool begins = name.size() >= kTellingBeginning && candidate.starts_with(name);
        const std::size_t distance = begins ? 0 : editDistance(name, candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string missingValue(const design::Facility& facility, std::span<const std::string> given) {
    const bool ring = facility.catalogue_row >= 0;
    const bool round = facility.shape == design::ShaftShape::Round;
    const std::array<std::pair<Need, bool>, 5> needs{{{Need::Always, true},
                                                      {Need::WithSandLayer, facility.sand_layer},
                                                      {Need::WithoutRing, !ring},
                                                      {Need::RoundWithoutRing, !ring && round},
                                                      {Need::RectangularWithoutRing, !ring && !round}}};
    const auto panel = design::panelInputs(facility.type);
    for (const auto& [need, holds] : needs) {
        for (const Field& field : design::inputs()) {
            if (holds && field.need == need &&
                std::ranges::find(panel, field.input, &design::PanelInput::input) != panel.end() &&
                std::ranges::find(given, std::string_view(field.path)) == given.end()) {
                return field.path;
            }
        }
    }
    return {};
}

}  // namespace mero::project
