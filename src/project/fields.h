// SPDX-License-Identifier: MIT
/// The single values of a project file: the inputs of a design by their paths, and where a project stores
/// them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "design/input.h"
#include "design/text_input.h"
#include "project/project.h"

namespace mero::project {

using Field = design::InputInfo;
using FieldKind = design::InputKind;

/// The field of that path, null for none.
[[nodiscard]] const Field* findField(std::string_view path);
/// Stores a number as Single, a choice or station by its position, a truth as 0 or 1.
void store(const Field& field, Inputs& inputs, float value);
/// The stored number of a field that has one: the reverse of store().
[[nodiscard]] float stored(const Field& field, const Inputs& inputs);
/// The words that a choice takes, in the order of their positions; empty for other kinds.
[[nodiscard]] std::span<const std::string> choices(const Field& field);

/// Does a shaft of the catalogue take its place?
[[nodiscard]] constexpr bool isReplacedByRing(const Field& field) {
    return field.need >= design::Need::WithoutRing;
}

/// Names that may stand in the object at that path ("" for the document), for checks and suggestions.
[[nodiscard]] std::vector<std::string> namesIn(std::string_view object_path);

/// Largest magnitude of any number of a project file.
inline constexpr double kLargestNumber = 1e12;

/// The name among `names` that is meant by a misspelt one; empty when none is near.
[[nodiscard]] std::string nearestName(std::string_view name, std::span<const std::string> names);

/// The path of the first value that the project must give and does not, for the facility as it is chosen;
/// empty when all are there. `given` holds the paths that are given.
[[nodiscard]] std::string missingValue(const design::Facility& facility, std::span<const std::string> given);

}  // namespace mero::project
