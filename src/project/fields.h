// SPDX-License-Identifier: MIT
/// Every single value of a project file: its path, what it takes, and where it is stored.
/// One table serves the reader, the sweep, the document and the schema, so that they cannot differ.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/project.h"

namespace mero::project {

enum class FieldKind : std::uint8_t {
    Number,
    WholeNumber,
    Truth,
    Choice,       ///< one of a list of words
    Station,      ///< name or number of a rain-gauge station
    Periodicity,  ///< one of the seven periodicities
};

struct Field {
    const char* path;  ///< "facility.trench_width_m"
    FieldKind kind;
    const char* label;  ///< Czech caption of its box
    const char* unit;   ///< "" for a pure number or a choice
    /// Stores a number as Single, a choice or station by its position, a truth as 0 or 1.
    void (*store)(Inputs& inputs, float value);
};

[[nodiscard]] std::span<const Field> fields();
/// The field of that path, null for none.
[[nodiscard]] const Field* findField(std::string_view path);
/// The words that a choice takes, in the order of their positions; empty for other kinds.
[[nodiscard]] std::span<const std::string> choices(const Field& field);

/// The texts of a project file.
struct TextField {
    const char* path = "";
    std::string Texts::*text = nullptr;
    bool several_lines = false;
};
[[nodiscard]] std::span<const TextField> textFields();

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
