// SPDX-License-Identifier: MIT
/// Checks a JSON document without storing its values: names that stand twice, and the depth.
#pragma once

#include <string>
#include <string_view>

namespace mero::project {

class NameScan {
  public:
    /// Reads the document in linear time; ends at the first syntax error, which the parser reports.
    explicit NameScan(std::string_view document);

    /// Path of the first name that stands twice in one object, empty without one.
    [[nodiscard]] const std::string& doubled() const { return doubled_; }
    /// Whether objects and lists stand within each other more deeply than any project needs.
    [[nodiscard]] bool tooDeep() const { return too_deep_; }

  private:
    std::string doubled_;
    bool too_deep_ = false;
};

}  // namespace mero::project
