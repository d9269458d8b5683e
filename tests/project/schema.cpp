// SPDX-License-Identifier: MIT
/// Generates the schema: each input and text by its path, and what each type requires.
#include "project/schema.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

#include "platform/numbers/number_text.h"
#include "project/fields.h"
#include "project/project.h"

namespace mero::project {
namespace {

using design::FacilityType;
using design::Input;
using design::Need;
using Json = nlohmann::ordered_json;

std::string_view parentOf(std::string_view path) {
    return path.substr(0, path.rfind('.'));
}

std::string nameOf(std::string_view path) {
    return std::string(path.substr(path.rfind('.') + 1));
}

/// The shortest number that reads as the Single.
Json exactly(float value) {
    return Json::parse(numbers::general(value));
}

template <std::size_t n>
Json list(const std::array<float, n>& values) {
    Json items = Json::array();
    for (const float value : values) {
        items.push_back(exactly(value));
    }
    return items;
}

Json described(std::string_view description) {
    Json schema = Json::object();
    if (!description.empty()) {
        schema["description"] = description;
    }
    return schema;
}

void limit(Json& schema) {
    schema["type"] = "number";
    schema["minimum"] = -kLargestNumber;
    schema["maximum"] = kLargestNumber;
}

Json nineNumbers(std::string_view description) {
    Json schema = described(description);
    schema["type"] = "array";
    schema["minItems"] = calc::kRainRows;
    schema["maxItems"] = calc::kRainRows;
    limit(schema["items"]);
    return schema;
}

Json text(std::string_view description, bool several_lines) {
    Json schema = described(description);
    schema["type"] = "string";
    if (!several_lines) {
        schema["pattern"] = R"(^[^\u0000-\u001f]*$)";
    }
    return schema;
}

/// The value of an input that a project leaves out; nothing when that is no value of its own.
std::optional<Json> defaultOf(const Field& field) {
    if (field.input == Input::Groundwater) {
        return exactly(Inputs().groundwater_depth_m);
    }
    if (field.need != Need::Optional || field.given == nullptr) {
        return std::nullopt;
    }
    const float value = field.given(design::Facility());
    switch (field.kind) {
        case FieldKind::Truth:
            return value != 0.0F;
        case FieldKind::Choice:
            if (value < 0.0F) {
                return std::nullopt;
            }
            return choices(field)[static_cast<std::size_t>(value)];
        case FieldKind::Number:
        case FieldKind::WholeNumber:
            return exactly(value);
        case FieldKind::Station:
        case FieldKind::Periodicity:
            break;
    }
    return std::nullopt;
}

Json ofField(const Field& field) {
    Json schema = described(field.note);
    switch (field.kind) {
        case FieldKind::Number:
            limit(schema);
            break;
        case FieldKind::WholeNumber:
            schema["type"] = "integer";
            schema["minimum"] = std::numeric_limits<std::int16_t>::min();
            schema["maximum"] = std::numeric_limits<std::int16_t>::max();
            break;
        case FieldKind::Truth:
            schema["type"] = "boolean";
            break;
        case FieldKind::Choice:
            schema["enum"] = choices(field);
            break;
        case FieldKind::Station:
            schema["oneOf"] = {{{"type", "string"}}, {{"type", "integer"}}};
            break;
        case FieldKind::Periodicity:
            schema["enum"] = list(reference().Periodicita);
            break;
    }
    if (const auto value = defaultOf(field)) {
        schema["default"] = *value;
    }
    return schema;
}

bool isOnPanel(Input input, FacilityType type) {
    const auto panel = design::panelInputs(type);
    return std::ranges::find(panel, input, &design::PanelInput::input) != panel.end();
}

/// Must the object always have it, whatever the type?
bool isRequired(const Field& field) {
    return field.need == Need::Always && std::ranges::none_of(design::kFacilityTypes, [&](FacilityType type) {
               return isOnPanel(field.input, type);
           });
}

/// An object with the inputs and texts that lie right in it.
Json object(std::string_view path, std::string_view description) {
    Json properties = Json::object();
    Json required = Json::array();
    for (const Field& field : design::inputs()) {
        if (parentOf(field.path) == path) {
            properties[nameOf(field.path)] = ofField(field);
            if (isRequired(field)) {
                required.push_back(nameOf(field.path));
            }
        }
    }
    for (const design::TextInputInfo& field : design::textInputs()) {
        if (parentOf(field.path) == path) {
            properties[nameOf(field.path)] = text(field.note, field.several_lines);
        }
    }
    Json schema = described(description);
    schema["type"] = "object";
    schema["additionalProperties"] = false;
    if (!required.empty()) {
        schema["required"] = required;
    }
    schema["properties"] = properties;
    return schema;
}

Json rain() {
    Json schema = object("rain", "a station of the rain database, or nine own intensities");
    Json& durations = schema["properties"]["durations_min"] = nineNumbers("durations of the own intensities");
    durations["default"] = list(reference().DobaTrvani);
    schema["properties"]["intensities_l_s_ha"] = nineNumbers("own intensities");
    schema["oneOf"] = {
        {{"required", Json::array({"station"})}, {"properties", {{"durations_min", false}}}},
        {{"required", Json::array({"intensities_l_s_ha"})}},
    };
    return schema;
}

Json areas() {
    const auto nonZero = [](std::string_view description) {
        Json schema = described(description);
        limit(schema);
        schema["not"] = {{"const", 0}};
        return schema;
    };
    const Json area = {{"type", "object"},
                       {"additionalProperties", false},
                       {"required", {"area_m2", "runoff_coefficient"}},
                       {"properties",
                        {{"area_m2", nonZero("size")},
                         {"runoff_coefficient", nonZero("share of the rain that runs off")},
                         {"surface", text("its surface, for the report", false)}}}};
    return {{"description", "the drained partial areas"}, {"type", "array"}, {"items", area}};
}

/// A facility of the type for which inputs of that need are required.
Json facilityThatNeeds(FacilityType type, Need need) {
    Json properties = Json::object();
    Json required = Json::array();
    const auto where = [&](Input input, int position) {
        const Field& field = design::info(input);
        properties[nameOf(field.path)] = {{"const", field.choices[static_cast<std::size_t>(position)].word}};
        required.push_back(nameOf(field.path));
    };
    where(Input::Type, static_cast<int>(data::index(type)) - 1);
    // The shape is given only without a ring.
    if (need == Need::RoundWithoutRing || need == Need::RectangularWithoutRing) {
        const auto shape =
            need == Need::RoundWithoutRing ? design::ShaftShape::Round : design::ShaftShape::Rectangular;
        where(Input::Shape, static_cast<int>(shape));
    }
    if (need == Need::WithSandLayer) {
        where(Input::Variant, 1);  // type_b
    }
    Json facility = {{"properties", properties}, {"required", required}};
    if (need == Need::WithoutRing) {
        facility["not"] = {{"required", Json::array({nameOf(design::info(Input::CatalogueShaft).path)})}};
    }
    return facility;
}

/// What each type requires, and what a ring of the catalogue excludes.
Json conditions() {
    Json all = Json::array();
    for (const Need need : {Need::Always, Need::WithSandLayer, Need::WithoutRing, Need::RoundWithoutRing,
                            Need::RectangularWithoutRing}) {
        for (const FacilityType type : design::kFacilityTypes) {
            Json required = Json::array();
            for (const Field& field : design::inputs()) {
                if (field.need == need && isOnPanel(field.input, type)) {
                    required.push_back(nameOf(field.path));
                }
            }
            if (!required.empty()) {
                all.push_back(
                    {{"if", facilityThatNeeds(type, need)}, {"then", {{"required", std::move(required)}}}});
            }
        }
    }
    Json excluded = Json::object();
    for (const Field& field : design::inputs()) {
        if (isReplacedByRing(field)) {
            excluded[nameOf(field.path)] = false;
        }
    }
    const Json ring = Json::array({nameOf(design::info(Input::CatalogueShaft).path)});
    all.push_back({{"if", {{"required", ring}}}, {"then", {{"properties", excluded}}}});
    return all;
}

Json facility() {
    Json schema = object("facility", "the facility; fields of other types than the chosen one may stay");
    schema["properties"]["overflow"] = object(
        "facility.overflow", "overflow with throttled outflow (type swale_trench); without it there is none");
    schema["properties"]["drain"] = object("facility.drain", "drain (type trench); without it there is none");
    schema["allOf"] = conditions();
    return schema;
}

Json version() {
    Json schema = described("version of the file");
    schema["type"] = "integer";
    schema["minimum"] = 1;
    schema["default"] = 1;
    return schema;
}

Json window() {
    Json schema = described("the exact state of the window; for mero only");
    schema["type"] = "object";
    return schema;
}

}  // namespace

std::string schema() {
    const Json document = {{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                           {"title", "MERO project file"},
                           {"description",
                            "The inputs of one design, as mero-batch design and mero-batch sweep read them, "
                            "and the state of the window."},
                           {"type", "object"},
                           {"additionalProperties", false},
                           {"required", {"rain", "areas", "subsoil", "facility"}},
                           {"properties",
                            {{"$schema", {{"type", "string"}}},
                             {"version", version()},
                             {"project", object("project", "texts of the report")},
                             {"rain", rain()},
                             {"areas", areas()},
                             {"subsoil", object("subsoil", "")},
                             {"facility", facility()},
                             {"window", window()}}}};
    constexpr int kIndent = 2;
    return document.dump(kIndent) + "\n";
}

}  // namespace mero::project
