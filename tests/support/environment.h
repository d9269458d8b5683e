// SPDX-License-Identifier: MIT
/// Sets an environment variable for one test.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace mero::test {

class Environment {
  public:
    /// @param value nothing removes the variable
    Environment(const char* name, const std::optional<std::string>& value) : name_(name) {
        if (const char* before = std::getenv(name)) {
            before_ = before;
        }
        put(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { put(before_); }

  private:
    void put(const std::optional<std::string>& value) const {
        if (value) {
            ::setenv(name_, value->c_str(), 1);
        } else {
            ::unsetenv(name_);
        }
    }

    const char* name_;
    std::optional<std::string> before_;
};

}  // namespace mero::test
