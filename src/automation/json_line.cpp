// SPDX-License-Identifier: MIT
/// JSON texts of the trace's values.
/// Numbers are written by platform/numbers, whose texts are valid JSON.
#include "automation/json_line.h"

#include "platform/json_text.h"
#include "platform/numbers/number_text.h"

namespace mero::automation {

std::string json(std::string_view text) {
    return platform::jsonText(text);
}

std::string json(const std::string& text) {
    return json(std::string_view(text));
}

std::string json(const char* text) {
    return json(std::string_view(text));
}

std::string json(bool value) {
    return value ? "true" : "false";
}

std::string json(int value) {
    return numbers::general(value);
}

std::string json(std::int16_t value) {
    return numbers::general(static_cast<int>(value));
}

std::string json(float value) {
    return numbers::general(value);
}

std::string json(double value) {
    return numbers::general(value);
}

std::string json(const data::RoundShaft& shaft) {
    return jsonArray({json(shaft.designation), json(shaft.inner_diameter_m), json(shaft.wall_m)});
}

std::string json(const data::RectangularShaft& shaft) {
    return jsonArray({json(shaft.designation), json(shaft.side1_m), json(shaft.side2_m), json(shaft.wall_m)});
}

std::string jsonArray(const std::vector<std::string>& elements) {
    std::string text;
    for (const std::string& element : elements) {
        text += text.empty() ? "" : ", ";
        text += element;
    }
    return "[" + text + "]";
}

JsonLine& JsonLine::addJson(std::string_view name, const std::string& value) {
    members_ += members_.empty() ? "" : ", ";
    members_ += json(name) + ": " + value;
    return *this;
}

}  // namespace mero::automation
