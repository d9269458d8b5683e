// SPDX-License-Identifier: MIT
/// The arguments of one command: options with values, flags, and what is no option.
/// Values follow their option as the next argument or behind "=".
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/clock.h"

namespace mero::app {

class CommandLine {
  public:
    explicit CommandLine(std::span<const std::string_view> arguments) : rest_(arguments) {}

    /// The next option or argument, nothing at the end.
    /// @throws UsageError when the option before it was given a value that it does not take
    [[nodiscard]] std::optional<std::string_view> next();
    /// The value of the option that next() gave. @throws UsageError when there is none
    [[nodiscard]] std::string value();

    [[noreturn]] void refuse() const;
    /// Takes the argument that is no option. @throws UsageError when there is one already, or it is an option
    void takeSingle(std::string& slot, const char* what) const;

  private:
    std::span<const std::string_view> rest_;
    std::string_view current_;
    std::optional<std::string_view> attached_;
};

/// An existing folder, absolute. @throws UsageError
[[nodiscard]] std::string existingFolder(const std::string& text);
/// A whole number within limits. @throws UsageError
[[nodiscard]] int wholeNumber(const std::string& text, int least, int most, std::string_view option);

/// The options that all commands on projects share: the folder, and the help.
struct FolderOption {
    std::string folder;
    [[nodiscard]] std::string orDefault() const;
};

}  // namespace mero::app
