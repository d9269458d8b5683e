// SPDX-License-Identifier: MIT
/// From a project to JSON, by the tables of inputs and texts.
#include "project/write_project.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "platform/numbers/number_text.h"
#include "project/fields.h"

namespace mero::project {
namespace {

using Json = nlohmann::ordered_json;

/// The place of a path, with its objects.
Json& at(Json& document, std::string_view path) {
    Json* place = &document;
    while (true) {
        const std::size_t dot = path.find('.');
        place = &(*place)[std::string(path.substr(0, dot))];
        if (dot == std::string_view::npos) {
            return *place;
        }
        path.remove_prefix(dot + 1);
    }
}

Json ofField(const Field& field, const Inputs& inputs) {
    const float value = stored(field, inputs);
    const auto position = [value] { return static_cast<std::size_t>(std::max(value, 0.0F)); };
    switch (field.kind) {
        case FieldKind::Number:
        case FieldKind::WholeNumber:
            break;
        case FieldKind::Truth:
            return value != 0.0F;
        case FieldKind::Choice:
            return choices(field)[position()];
        case FieldKind::Station:
            return reference().StaniceNazev[position()];
        case FieldKind::Periodicity:
            return exactNumber(reference().Periodicita[position()]);
    }
    return exactNumber(value);
}

Json nine(const std::array<float, calc::kRainRows>& values) {
    Json list = Json::array();
    for (const float value : values) {
        list.push_back(exactNumber(value));
    }
    return list;
}

Json areasOf(const Project& project) {
    Json list = Json::array();
    for (std::size_t i = 0; i < project.inputs.areas.size(); ++i) {
        Json& area = list.emplace_back();
        area["area_m2"] = exactNumber(project.inputs.areas[i].area_m2);
        area["runoff_coefficient"] = exactNumber(project.inputs.areas[i].runoff_coefficient);
        if (!project.texts.surfaces[i].empty()) {
            area["surface"] = project.texts.surfaces[i];
        }
    }
    return list;
}

}  // namespace

Json exactNumber(float value) {
    constexpr double kExactlyWhole = 1e9;
    const double number = numbers::leadingNumber(numbers::general(value));
    if (std::floor(number) == number && std::fabs(number) <= kExactlyWhole) {
        return static_cast<std::int64_t>(number);
    }
    return number;
}

Json inputsDocument(const Project& project) {
    const auto is_given = [&](std::string_view path) {
        return std::ranges::find(project.given, path) != project.given.end();
    };
    Json document = Json::object();
    for (const design::TextInputInfo& text : design::textInputs()) {
        if (std::string_view(text.path).starts_with("project.") && !(project.texts.*text.stored).empty()) {
            at(document, text.path) = project.texts.*text.stored;
        }
    }
    document["rain"] = Json::object();
    document["areas"] = areasOf(project);
    document["subsoil"] = Json::object();
    document["facility"] = Json::object();
    for (const Field& field : design::inputs()) {
        if (is_given(field.path)) {
            at(document, field.path) = ofField(field, project.inputs);
        }
    }
    if (is_given("rain.durations_min")) {
        at(document, "rain.durations_min") = nine(project.inputs.rain.durations_min);
    }
    if (is_given("rain.intensities_l_s_ha")) {
        at(document, "rain.intensities_l_s_ha") = nine(project.inputs.rain.intensities_l_s_ha);
    }
    for (const char* pipes : {"facility.overflow", "facility.drain"}) {
        if (is_given(pipes) && at(document, pipes).is_null()) {
            at(document, pipes) = Json::object();
        }
    }
    if (!project.texts.txtTypPudyPodlozi.empty()) {
        at(document, info(design::TextInput::Subsoil).path) = project.texts.txtTypPudyPodlozi;
    }
    return document;
}

}  // namespace mero::project
