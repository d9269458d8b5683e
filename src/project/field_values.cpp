// SPDX-License-Identifier: MIT
/// From the text of one value to the number that is stored for it.
/// Stations are known by their name and by the number of their table.
#include <cmath>
#include <stdexcept>

#include "data/mod_default_data.h"
#include "data/mod_public_variables.h"
#include "platform/numbers/number_text.h"
#include "platform/numbers/runtime_error.h"
#include "project/project.h"
#include "project/read_project.h"
#include "project/shown_text.h"

namespace mero::project {
namespace {

std::string joined(std::span<const std::string> words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

/// @throws std::invalid_argument
void checkLimits(double number) {
    if (!(std::fabs(number) <= kLargestNumber)) {
        throw std::invalid_argument("expected a number from -1e12 to 1e12");
    }
}

[[noreturn]] void refuse(const std::string& expectation, std::string_view text,
                         std::span<const std::string> words = {}) {
    constexpr std::size_t kLongestText = 60;
    std::string reason = "expected " + expectation + ", not \"" + shownText(text, kLongestText) + "\"";
    const std::string near = nearestName(text, words);
    if (!near.empty()) {
        reason += "; did you mean \"" + near + "\"?";
    }
    throw std::invalid_argument(reason);
}

float numberOf(const std::string& expectation, std::string_view text) {
    float number = 0.0F;
    try {
        number = numbers::strictSingle(text);
    } catch (const RuntimeError&) {
        refuse(expectation, text);
    }
    checkLimits(number);
    return number;
}

std::string expectedNumber(std::string_view unit) {
    return unit.empty() ? "a number" : "a number [" + std::string(unit) + "]";
}

float choiceOf(const Field& field, std::string_view text) {
    const auto words = choices(field);
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == text) {
            return static_cast<float>(i);
        }
    }
    refuse(expected(field), text, words);
}

float stationOf(const Field& field, std::string_view text) {
    const data::ReferenceTables& tables = reference();
    for (int position = 1; position <= data::kStationCount; ++position) {
        const auto& name = tables.StaniceNazev[static_cast<std::size_t>(position)];
        if (name == text || numbers::general(static_cast<int>(tables.StaniceCislo(position))) == text) {
            return static_cast<float>(position);
        }
    }
    refuse(expected(field), text, std::span(tables.StaniceNazev).subspan(1));
}

float periodicityOf(const Field& field, std::string_view text) {
    const float number = numberOf(expected(field), text);
    const auto& periodicities = reference().Periodicita;
    for (std::size_t k = 0; k < periodicities.size(); ++k) {
        if (periodicities[k] == number) {
            return static_cast<float>(k);
        }
    }
    refuse(expected(field), text);
}

}  // namespace

const data::ReferenceTables& reference() {
    static const data::modPublicVariables kTables = [] {
        data::modPublicVariables tables;
        data::LoadDefaultData(tables);
        return tables;
    }();
    return kTables;
}

float numberValue(std::string_view unit, std::string_view text) {
    return numberOf(expectedNumber(unit), text);
}

float singleOf(double number) {
    checkLimits(number);
    // Through its text, so that it is rounded once, as a typed number is; -0 becomes 0.
    return numbers::strictSingle(numbers::general(number));
}

std::string expected(const Field& field) {
    switch (field.kind) {
        case FieldKind::Number:
            return expectedNumber(field.unit);
        case FieldKind::WholeNumber:
            return "a whole number from -32768 to 32767";
        case FieldKind::Truth:
            return "true or false";
        case FieldKind::Choice:
            return "one of: " + joined(choices(field));
        case FieldKind::Station:
            return "the name or number of a rain-gauge station (see mero-batch stations)";
        case FieldKind::Periodicity: {
            std::vector<std::string> texts;
            for (const float periodicity : reference().Periodicita) {
                texts.push_back(numbers::general(periodicity));
            }
            return "one of: " + joined(texts);
        }
    }
    return {};
}

float fieldValue(const Field& field, std::string_view text) {
    switch (field.kind) {
        case FieldKind::Number:
            return numberOf(expected(field), text);
        case FieldKind::WholeNumber: {
            const float number = numberOf(expected(field), text);
            if (number != std::floor(number) || number < -32768.0F || number > 32767.0F) {
                refuse(expected(field), text);
            }
            return number;
        }
        case FieldKind::Truth:
            if (text != "true" && text != "false") {
                refuse(expected(field), text);
            }
            return text == "true" ? 1.0F : 0.0F;
        case FieldKind::Choice:
            return choiceOf(field, text);
        case FieldKind::Station:
            return stationOf(field, text);
        case FieldKind::Periodicity:
            return periodicityOf(field, text);
    }
    return 0.0F;
}

}  // namespace mero::project
