// SPDX-License-Identifier: MIT
/// The values of a window's state to JSON and back, member by member. One description of the members serves
/// both directions. For state_document.cpp.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string_view>
#include <type_traits>

#include "design/input.h"
#include "design/text_input.h"
#include "design/verdict.h"
#include "forms/keeping/number_names.h"
#include "forms/keeping/window_state.h"
#include "platform/numbers/number_text.h"

namespace mero::forms::state_json {

using nlohmann::json;

/// JSON has no negative zero that every reader keeps.
inline constexpr const char* kNegativeZero = "-0";

// Values to JSON.

inline json jsonOf(float value) {
    if (value == 0.0F && std::signbit(value)) {
        return kNegativeZero;
    }
    return numbers::leadingNumber(numbers::general(value));
}
inline json jsonOf(bool value) {
    return value;
}
inline json jsonOf(int value) {
    return value;
}
inline json jsonOf(std::int16_t value) {
    return value;
}
inline json jsonOf(std::int8_t value) {
    return value;
}
inline json jsonOf(const std::string& value) {
    return value;
}
inline json jsonOf(FacilityType type) {
    return type == FacilityType::None ? "none" : design::table::kTypes[data::index(type) - 1].word;
}
inline json jsonOf(data::ShaftShape shape) {
    return design::table::kShapes[static_cast<std::size_t>(shape)].word;
}

inline constexpr std::array kEnds{"none", "running", "done", "refused", "failed"};
inline json jsonOf(CalculationEnd end) {
    return kEnds[static_cast<std::size_t>(end)];
}
inline json jsonOf(design::VerdictId id) {
    return design::info(id).code;
}

// JSON to values.

inline void take(const json& from, float& value) {
    if (from.is_string() && from.get<std::string>() == kNegativeZero) {
        value = -0.0F;
        return;
    }
    // Through the shortest text, so that it is rounded once.
    value = numbers::strictSingle(numbers::general(from.get<double>()));
}
inline void take(const json& from, bool& value) {
    value = from.get<bool>();
}
/// A file may hold any number.
template <typename Whole>
Whole wholeNumber(const json& from) {
    const double number = from.get<double>();
    if (!from.is_number_integer() || number < std::numeric_limits<Whole>::min() ||
        number > std::numeric_limits<Whole>::max()) {
        throw std::invalid_argument("no whole number in range");
    }
    return from.get<Whole>();
}
inline void take(const json& from, int& value) {
    value = wholeNumber<int>(from);
}
inline void take(const json& from, std::int16_t& value) {
    value = wholeNumber<std::int16_t>(from);
}
inline void take(const json& from, std::int8_t& value) {
    value = wholeNumber<std::int8_t>(from);
}
inline void take(const json& from, std::string& value) {
    value = from.get<std::string>();
}

/// The position of a word in a table of words.
template <typename Words, typename WordOf>
std::size_t positionOf(const json& from, const Words& words, WordOf word_of) {
    const auto word = from.get<std::string>();
    const auto found = std::ranges::find_if(words, [&](const auto& each) { return word_of(each) == word; });
    if (found == std::end(words)) {
        throw std::invalid_argument("an unknown word");
    }
    return static_cast<std::size_t>(found - std::begin(words));
}
inline std::string_view wordOf(const char* word) {
    return word;
}
inline std::string_view wordOf(const design::Choice& choice) {
    return choice.word;
}
template <typename Words>
std::size_t positionOf(const json& from, const Words& words) {
    return positionOf(from, words, [](const auto& each) { return wordOf(each); });
}
inline void take(const json& from, FacilityType& type) {
    type =
        from == "none" ? FacilityType::None : data::kFacilityTypes[positionOf(from, design::table::kTypes)];
}
inline void take(const json& from, data::ShaftShape& shape) {
    shape = static_cast<data::ShaftShape>(positionOf(from, design::table::kShapes));
}
inline void take(const json& from, CalculationEnd& end) {
    end = static_cast<CalculationEnd>(positionOf(from, kEnds));
}
inline void take(const json& from, design::VerdictId& id) {
    const auto all = design::verdicts();
    const auto at =
        positionOf(from, all, [](const design::VerdictInfo& each) -> std::string_view { return each.code; });
    id = all[at].id;
}

// Lists.

template <typename T>
json jsonOf(const T& object);
template <typename T>
void take(const json& from, T& object);
template <typename T, std::size_t n>
json jsonOf(const std::array<T, n>& list);
template <typename T, std::size_t n>
void take(const json& from, std::array<T, n>& list);

template <typename T>
json listOf(const T& list) {
    json items = json::array();
    for (const auto& item : list) {
        items.push_back(jsonOf(item));
    }
    return items;
}
template <typename T, std::size_t n>
json jsonOf(const std::array<T, n>& list) {
    return listOf(list);
}
template <typename T>
json jsonOf(const std::vector<T>& list) {
    return listOf(list);
}
template <typename T>
json jsonOf(const data::OneBasedList<T>& list) {
    return listOf(list.items());
}

template <typename T, std::size_t n>
void take(const json& from, std::array<T, n>& list) {
    if (!from.is_array() || from.size() != n) {
        throw std::invalid_argument("a list of another length");
    }
    for (std::size_t i = 0; i < n; ++i) {
        take(from[i], list[i]);
    }
}
template <typename T>
void take(const json& from, std::vector<T>& list) {
    list.assign(from.get_ref<const json::array_t&>().size(), T{});
    for (std::size_t i = 0; i < list.size(); ++i) {
        take(from[i], list[i]);
    }
}
template <typename T>
void take(const json& from, data::OneBasedList<T>& list) {
    const auto length = static_cast<int>(from.get_ref<const json::array_t&>().size());
    list.resize(length);
    for (int i = 1; i <= length; ++i) {
        take(from[static_cast<std::size_t>(i) - 1], list(i));
    }
}

// The members of objects, for both directions.

template <typename T, typename Object>
concept Is = std::is_same_v<std::remove_const_t<Object>, T>;

template <typename Archive, typename Object>
void members(Archive archive, Object& numbers) requires Is<data::DesignNumbers, Object> {
    for (const NamedNumber& each : kNamedNumbers) {
        archive(each.name, numbers.*each.stored);
    }
    archive("txtSachtyCount", numbers.txtSachtyCount);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& state) requires Is<CalculationState, Object> {
    archive("numbers", state.numbers);
    archive("durations_min", state.durations_min);
    archive("intensities_l_s_ha", state.intensities_l_s_ha);
    archive("soil_option", state.soil_option);
    archive("sand_layer", state.sand_layer);
    archive("upstream_settling", state.upstream_settling);
    archive("pipes_ticked", state.pipes_ticked);
    archive("shaft_shape", state.shaft_shape);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& verdict) requires Is<design::Verdict, Object> {
    archive("verdict", verdict.id);
    archive("values", verdict.values);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& calculation) requires Is<Calculation, Object> {
    archive("end", calculation.end);
    archive("read", calculation.state);
    archive("verdicts", calculation.verdicts);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& rains) requires Is<DemonstrationRains, Object> {
    archive("station", rains.station);
    archive("rows", rains.rows);
    archive("picked", rains.picked);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& control) requires Is<platform::ControlState, Object> {
    archive("enabled", control.enabled);
    archive("visible", control.visible);
    archive("greyed", control.greyed);
    archive("chosen", control.chosen);
    archive("position", control.position);
    archive("left", control.left);
    archive("top", control.top);
    archive("text", control.text);
    archive("items", control.items);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& texts) requires Is<data::ProjectTexts, Object> {
    for (const design::TextInputInfo& each : design::textInputs()) {
        archive(each.box, texts.*each.stored);
    }
}

template <typename Archive, typename Object>
void members(Archive archive, Object& rain) requires Is<data::RainValues, Object> {
    archive("intensities_l_s_ha", rain.IntenzitaDeste);
    archive("station", rain.VybranaStanice);
    archive("periodicity", rain.VybranaPeriodicita);
    archive("station_durations_min", rain.DobaStanice);
    archive("station_intensities_l_s_ha", rain.IntenzitaStanice);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& areas) requires Is<data::DrainedAreaValues, Object> {
    archive("area_m2", areas.DilciPlocha);
    archive("runoff_coefficient", areas.OdtokovySoucinitel);
    archive("surface", areas.TypPovrchu);
}

template <typename Archive, typename Object>
void members(Archive archive, Object& state) requires Is<WindowState, Object> {
    archive("texts", state.texts);
    archive("durations_min", state.durations_min);
    archive("rain", state.rain);
    archive("areas", state.areas);
    archive("numbers", state.numbers);
    archive("knows_database", state.knows_database);
    archive("type_group", state.type_group);
    archive("type", state.selected_type);
    archive("soil_variant", state.soil_variant);
    archive("shaft_shape", state.shaft_shape);
    archive("demonstration", state.demonstration);
}

template <typename T>
json jsonOf(const T& object) {
    json document = json::object();
    members([&document](const char* name, const auto& member) { document[name] = jsonOf(member); }, object);
    return document;
}

template <typename T>
void take(const json& from, T& object) {
    members([&from](const char* name, auto& member) { take(from.at(name), member); }, object);
}

}  // namespace mero::forms::state_json
