// SPDX-License-Identifier: MIT
/// Parses the arguments of a program or a command: options, their values, and arguments that are no options.
/// An option's value is the next argument, or stands behind "=".
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace mero::app {

/// Thrown for an argument that cannot be used; what() says which one and why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Iterates over the arguments. The caller compares each with the options that it knows.
class CommandLine {
  public:
    explicit CommandLine(std::span<const std::string_view> arguments) : rest_(arguments) {}

    /// The next option (without "=" and its value) or argument; nothing at the end.
    /// @throws UsageError when the option before it was given a value with "=" that nobody read
    [[nodiscard]] std::optional<std::string_view> next();
    /// The value of the option that next() returned. @throws UsageError when there is none
    [[nodiscard]] std::string value();

    /// @throws UsageError always: the argument that next() returned is unknown
    [[noreturn]] void refuse() const;
    /// Stores the argument that next() returned. @throws UsageError when it is empty or an option, or when
    /// `slot` is already filled
    /// @param what names the argument in the error message
    void takeSingle(std::string& slot, const char* what) const;

  private:
    std::span<const std::string_view> rest_;
    std::string_view current_;
    std::optional<std::string_view> attached_;
};

/// The absolute, normalised path of an existing folder; a trailing "/" stays.
/// @throws UsageError when there is no such folder
[[nodiscard]] std::string existingFolder(const std::string& text);
/// A date and time such as 2026-11-20T14:05:09. @throws UsageError
[[nodiscard]] platform::DateTime dateAndTime(const std::string& text);
/// A whole number from `least` to `most`. @throws UsageError
/// @param option names the option in the error message
[[nodiscard]] int wholeNumber(const std::string& text, int least, int most, std::string_view option);

}  // namespace mero::app
