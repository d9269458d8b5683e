// SPDX-License-Identifier: MIT
/// The JSON of a project file, before its values are read.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace mero::project {

/// A project file that cannot be used; what() tells file, place and reason in one line.
class ProjectError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A document that is no JSON, or has a name twice.
class DocumentError : public ProjectError {
  public:
    DocumentError(const std::string& what, int line, int column, std::string doubled)
        : ProjectError(what), line_(line), column_(column), doubled_(std::move(doubled)) {}
    [[nodiscard]] int line() const { return line_; }  ///< from 1
    [[nodiscard]] int column() const { return column_; }
    /// Path of the name that stands twice, on one short line; empty when the document is no JSON.
    [[nodiscard]] const std::string& doubled() const { return doubled_; }

  private:
    int line_;
    int column_;
    std::string doubled_;
};

/// @param file name for the errors
/// @throws DocumentError
[[nodiscard]] nlohmann::json parseDocument(std::string_view json, const std::string& file);

/// The version of a document, 1 where none stands or is no version.
[[nodiscard]] int versionOf(const nlohmann::json& document);

}  // namespace mero::project
