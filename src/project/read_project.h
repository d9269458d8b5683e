// SPDX-License-Identifier: MIT
/// Reading a project file.
/// Whatever is wrong is told with the file, the path in the document, and what was expected there.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "project/fields.h"
#include "project/project.h"

namespace mero::project {

/// A project file that cannot be used; what() tells file, place and reason in one line.
class ProjectError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// @throws ProjectError
[[nodiscard]] Project readProjectFile(const std::string& file);
/// @param file name for the errors
/// @throws ProjectError
[[nodiscard]] Project readProject(std::string_view json, const std::string& file);

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
