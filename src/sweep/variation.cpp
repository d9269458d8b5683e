// SPDX-License-Identifier: MIT
/// Parses PATH=VALUES into stored numbers and their texts.
/// Values are converted by the same functions as those of a project file.
#include "sweep/variation.h"

#include <algorithm>

#include "platform/numbers/number_text.h"
#include "project/project.h"
#include "project/read_project.h"
#include "sweep/value_lists.h"

namespace mero::sweep {
namespace {

using project::FieldKind;

constexpr std::string_view kAll = "all";
constexpr std::string_view kAreas = "areas[";

bool isNumber(const project::Field& field) {
    return field.kind == FieldKind::Number || field.kind == FieldKind::WholeNumber;
}

/// The text of a stored value in files and on axes.
std::string textOf(const project::Field& field, float value) {
    const auto position = [&] { return static_cast<std::size_t>(value); };
    switch (field.kind) {
        case FieldKind::Choice:
            return project::choices(field)[position()];
        case FieldKind::Truth:
            return value != 0.0F ? "true" : "false";
        case FieldKind::Station:
            return project::reference().StaniceNazev[position()];
        case FieldKind::Periodicity:
            return numbers::general(project::reference().Periodicita[position()]);
        case FieldKind::Number:
        case FieldKind::WholeNumber:
            break;
    }
    return numbers::general(value);
}

std::size_t positions(const project::Field& field) {
    switch (field.kind) {
        case FieldKind::Choice:
            return project::choices(field).size();
        case FieldKind::Truth:
            return 2;
        case FieldKind::Periodicity:
            return data::kPeriodicityCount;
        default:
            return 0;
    }
}

/// The object that holds the value: `facility.drain` for `facility.drain.pipe_count`.
std::string objectOf(const std::string& path) {
    const std::size_t dot = path.rfind('.');
    return dot == std::string::npos ? std::string() : path.substr(0, dot);
}

bool isGiven(const project::Project& project, const std::string& path) {
    return std::find(project.given.begin(), project.given.end(), path) != project.given.end();
}

std::string unknownPath(const std::string& path) {
    std::vector<std::string> paths;
    for (const project::Field& field : design::inputs()) {
        paths.emplace_back(field.path);
    }
    const std::string near = project::nearestName(path, paths);
    return path + ": is no value that can be varied" +
           (near.empty() ? "" : "; did you mean \"" + near + "\"?");
}

}  // namespace

Variation Variation::parse(std::string_view text, const project::Project& project) {
    const std::size_t equals = text.find('=');
    Variation variation;
    variation.path_ = std::string(text.substr(0, equals));
    if (equals == std::string_view::npos || equals == 0) {
        throw VariationError(std::string(text) + ": expected PATH=VALUES");
    }
    const std::string_view values = text.substr(equals + 1);
    const project::Field* field = project::findField(variation.path_);
    try {
        if (variation.path_.starts_with(kAreas)) {
            variation.takeArea(values, project);
        } else if (field == nullptr) {
            throw VariationError(unknownPath(variation.path_));
        } else {
            variation.takeField(*field, values, project);
        }
    } catch (const std::invalid_argument& reason) {
        throw VariationError(variation.path_ + ": " + reason.what());
    }
    return variation;
}

void Variation::takeField(const project::Field& field, std::string_view values,
                          const project::Project& project) {
    const std::string object = objectOf(path_);
    if (!isGiven(project, object)) {
        throw std::invalid_argument("the project has no \"" + object + "\"");
    }
    if (field.kind == FieldKind::Station && isGiven(project, "rain.intensities_l_s_ha")) {
        throw std::invalid_argument("the project has own intensities in the place of a station");
    }
    field_ = &field;
    label_ = design::captionOf(field.input);
    unit_ = field.unit;
    numeric_ = isNumber(field) || field.kind == FieldKind::Periodicity;
    if (values == kAll) {
        takeAll(field, project);
    } else if (const auto range = isNumber(field) ? numberRange(values) : std::nullopt) {
        logarithmic_ = range->logarithmic;
        for (const double number : range->numbers) {
            const float value = project::fieldValue(field, numbers::general(number));
            add(value, textOf(field, value));
        }
    } else {
        for (const std::string_view item : split(values, ',')) {
            const float value = project::fieldValue(field, item);
            add(value, textOf(field, value));
        }
    }
    if (path_ == "rain.design_duration_min") {
        const auto& durations = project.inputs.rain.durations_min;
        for (const float value : values_) {
            if (std::find(durations.begin(), durations.end(), value) == durations.end()) {
                throw std::invalid_argument("expected durations of the rain table, not " +
                                            numbers::general(value));
            }
        }
    }
}

void Variation::takeAll(const project::Field& field, const project::Project& project) {
    if (field.kind == FieldKind::Station) {
        for (int station = 1; station <= data::kStationCount; ++station) {
            add(static_cast<float>(station), textOf(field, static_cast<float>(station)));
        }
    } else if (path_ == "rain.design_duration_min") {
        for (const float duration : project.inputs.rain.durations_min) {
            add(duration, textOf(field, duration));
        }
    } else {
        for (std::size_t position = 0; position < positions(field); ++position) {
            add(static_cast<float>(position), textOf(field, static_cast<float>(position)));
        }
    }
    if (values_.empty()) {
        throw std::invalid_argument("\"all\" is for choices; expected " + project::expected(field));
    }
}

void Variation::takeArea(std::string_view values, const project::Project& project) {
    std::size_t member_at = 0;
    for (area_ = 0; area_ < project.inputs.areas.size(); ++area_) {
        const std::string element = std::string(kAreas) + numbers::general(static_cast<int>(area_)) + "].";
        if (path_.starts_with(element)) {
            member_at = element.size();
            break;
        }
    }
    const std::string member = member_at == 0 ? std::string() : path_.substr(member_at);
    if (member == "area_m2") {
        member_ = &project::PartialArea::area_m2;
        label_ = "Dílčí plocha";
        unit_ = "m²";
    } else if (member == "runoff_coefficient") {
        member_ = &project::PartialArea::runoff_coefficient;
        label_ = "Odtokový součinitel";
    } else {
        throw std::invalid_argument("the project has no such value (areas are counted from 0)");
    }
    numeric_ = true;
    std::vector<double> wanted;
    if (const auto range = numberRange(values)) {
        logarithmic_ = range->logarithmic;
        wanted = range->numbers;
    } else {
        for (const std::string_view item : split(values, ',')) {
            wanted.push_back(static_cast<double>(project::numberValue(unit_, item)));
        }
    }
    takeNumbers(wanted);
}

void Variation::takeNumbers(const std::vector<double>& numbers) {
    for (const double number : numbers) {
        const float value = project::singleOf(number);
        if (value == 0.0F) {
            throw std::invalid_argument("expected numbers other than 0");
        }
        add(value, numbers::general(value));
    }
}

void Variation::add(float value, std::string text) {
    values_.push_back(value);
    texts_.push_back(std::move(text));
}

double Variation::magnitude(std::size_t index) const {
    const bool by_position = path_ == "rain.periodicity";
    return static_cast<double>(
        by_position ? project::reference().Periodicita[static_cast<std::size_t>(values_[index])]
                    : values_[index]);
}

void Variation::apply(project::Inputs& inputs, std::size_t index) const {
    if (field_ != nullptr) {
        project::store(*field_, inputs, values_[index]);
    } else {
        inputs.areas[area_].*member_ = values_[index];
    }
}

}  // namespace mero::sweep
