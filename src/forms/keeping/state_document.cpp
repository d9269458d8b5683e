// SPDX-License-Identifier: MIT
/// What is left out is found by comparing whole documents.
#include "forms/keeping/state_document.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>

#include "forms/keeping/state_json.h"

namespace mero::forms {
namespace {

using nlohmann::json;

using state_json::jsonOf;
using state_json::take;

/// The members of `document` that differ from those of `base`.
json difference(const json& document, const json& base) {
    json differing = json::object();
    for (const auto& [name, value] : document.items()) {
        const json& other = base.at(name);
        if (value == other) {
            continue;
        }
        differing[name] = value.is_object() ? difference(value, other) : value;
    }
    return differing;
}

/// Puts the members of `differing` that `base` has into it.
void overwrite(json& base, const json& differing) {
    for (const auto& [name, value] : differing.items()) {
        const auto place = base.find(name);
        if (place == base.end()) {
            continue;
        }
        if (place->is_object() && value.is_object()) {
            overwrite(*place, value);
        } else {
            *place = value;
        }
    }
}

json membersNotIn(const json& base, const json& document) {
    json unknown = json::object();
    for (const auto& [name, value] : document.items()) {
        const auto place = base.find(name);
        if (place == base.end()) {
            unknown[name] = value;
        } else if (place->is_object() && value.is_object()) {
            json inside = membersNotIn(*place, value);
            if (!inside.empty()) {
                unknown[name] = std::move(inside);
            }
        }
    }
    return unknown;
}

void require(bool holds) {
    if (!holds) {
        throw std::invalid_argument("no state of a window");
    }
}

}  // namespace

StateDocument::StateDocument(const Program& program) : opening_(stateOf(program)) {
    for (const platform::Control* control : keptControls(program.window())) {
        names_.push_back(control->name());
        const auto* box = dynamic_cast<const platform::TextBox*>(control);
        multi_line_.push_back(box != nullptr && box->multiLine());
    }
}

json StateDocument::whole(const WindowState& state) const {
    json document = jsonOf(state);
    json& calculations = document["calculations"] = json::object();
    for (const FacilityType type : data::kFacilityTypes) {
        calculations[jsonOf(type).get<std::string>()] = jsonOf(state.calculations[data::index(type)]);
    }
    // What a calculation without a type told.
    calculations["none"] = jsonOf(state.calculations[0]);
    json& controls = document["controls"] = json::object();
    for (std::size_t i = 0; i < names_.size(); ++i) {
        controls[names_[i]] = jsonOf(state.controls[i]);
    }
    return document;
}

json StateDocument::differences(const WindowState& state) const {
    return difference(whole(state), whole(opening_));
}

WindowState StateDocument::state(const json& differences) const {
    json document = whole(opening_);
    overwrite(document, differences);
    WindowState state;
    take(document, state);
    const json& calculations = document.at("calculations");
    take(calculations.at("none"), state.calculations[0]);
    for (const FacilityType type : data::kFacilityTypes) {
        take(calculations.at(jsonOf(type).get<std::string>()), state.calculations[data::index(type)]);
    }
    const json& controls = document.at("controls");
    for (const std::string& name : names_) {
        take(controls.at(name), state.controls.emplace_back());
    }
    checkLists(state);
    return state;
}

void StateDocument::checkLists(const WindowState& state) const {
    const int areas = state.areas.DilciPlocha.length();
    require(areas >= 1 && state.areas.OdtokovySoucinitel.length() == areas &&
            state.areas.TypPovrchu.length() == areas);
    require((state.type_group == 0 || state.type_group == 1) &&
            (state.soil_variant == 0 || state.soil_variant == 1));
    // The type follows from the entry that is selected.
    const std::size_t most_types = state.type_group == 0 ? data::index(FacilityType::Shaft) + 1 : 1;
    require(control(state, "cboSelType").items.size() <= most_types);
    for (std::size_t i = 0; i < state.controls.size(); ++i) {
        const platform::ControlState& control = state.controls[i];
        require(control.position >= -1 && control.position < static_cast<int>(control.items.size()));
        require(std::ranges::all_of(control.text,
                                    [&](char c) { return platform::isAccepted(c, multi_line_[i]); }));
    }
}

json StateDocument::unknown(const json& document) const {
    return membersNotIn(whole(opening_), document);
}

const platform::ControlState& StateDocument::control(const WindowState& state,
                                                     const std::string& name) const {
    const auto found = std::ranges::find(names_, name);
    if (found == names_.end()) {
        throw std::logic_error("no control is called " + name);
    }
    return state.controls[static_cast<std::size_t>(found - names_.begin())];
}

}  // namespace mero::forms
