// SPDX-License-Identifier: MIT
/// One line of the trace: a JSON object whose members are in the order in which they were added.
/// Numbers are written by platform/numbers, so that no digit is added or lost.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/mod_public_variables.h"

namespace mero::automation {

/// JSON text of a value. Bytes that are not UTF-8 become the replacement character.
[[nodiscard]] std::string json(std::string_view text);
[[nodiscard]] std::string json(const std::string& text);
[[nodiscard]] std::string json(const char* text);
[[nodiscard]] std::string json(bool value);
[[nodiscard]] std::string json(int value);
[[nodiscard]] std::string json(std::int16_t value);
[[nodiscard]] std::string json(float value);
[[nodiscard]] std::string json(double value);
[[nodiscard]] std::string json(const data::RoundShaft& shaft);
[[nodiscard]] std::string json(const data::RectangularShaft& shaft);

/// JSON array of texts that are JSON already.
[[nodiscard]] std::string jsonArray(const std::vector<std::string>& elements);

/// JSON array of any list of values.
template <typename List>
requires requires(const List& list) {
    list.begin();
} &&(!std::convertible_to<List, std::string_view>) [[nodiscard]] std::string json(const List& list) {
    std::vector<std::string> elements;
    elements.reserve(list.size());
    for (const auto& element : list) {
        elements.push_back(json(element));
    }
    return jsonArray(elements);
}

template <typename T>
[[nodiscard]] std::string json(const std::optional<T>& value) {
    return value ? json(*value) : std::string("null");
}

class JsonLine {
  public:
    /// Adds a member whose value is JSON already.
    JsonLine& addJson(std::string_view name, const std::string& value);
    template <typename T>
    JsonLine& add(std::string_view name, const T& value) {
        return addJson(name, json(value));
    }
    [[nodiscard]] std::string text() const { return "{" + members_ + "}"; }

  private:
    std::string members_;
};

}  // namespace mero::automation
