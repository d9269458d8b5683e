// SPDX-License-Identifier: MIT
/// Reading a project file.
/// Whatever is wrong is told with the file, the path in the document, and what was expected there.
#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "project/document.h"
#include "project/fields.h"
#include "project/project.h"

namespace mero::project {

/// @throws ProjectError
[[nodiscard]] Project readProjectFile(const std::string& file);
/// @param file name for the errors
/// @throws ProjectError
[[nodiscard]] Project readProject(std::string_view json, const std::string& file);

/// What is wrong with a value of a document.
enum class Fault : std::uint8_t {
    UnknownName,
    WrongValue,  ///< of a wrong kind, out of its limits, or none of its words
    Missing,
    Conflict,  ///< does not go with another value
};
struct Remark {
    std::string path;
    Fault fault;
};

/// Takes what can be taken of a document, for a window in which the rest is entered by hand.
/// @param remarks gets what was not taken; values that are missing are no remarks
[[nodiscard]] Project readLeniently(const nlohmann::json& document, std::vector<Remark>& remarks);

/// The stored number of a value of that field, from the text that a command line gives.
/// @throws std::invalid_argument with what was expected
[[nodiscard]] float fieldValue(const Field& field, std::string_view text);
/// A number in that unit ("" for none). @throws std::invalid_argument with what was expected
[[nodiscard]] float numberValue(std::string_view unit, std::string_view text);
/// What the field takes, for an error: "a number [m]", "one of: round, rectangular".
[[nodiscard]] std::string expected(const Field& field);
/// The Single of a number of a project file. @throws std::invalid_argument when it is too large
[[nodiscard]] float singleOf(double number);

}  // namespace mero::project
