/// The options that both programs take: the program's folder and a frozen clock.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace mero::app {

/// Arguments that cannot be used; its text says why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct SharedOptions {
    std::optional<std::string> folder;        ///< --folder DIR
    std::optional<platform::DateTime> clock;  ///< --clock 2026-11-20T14:05:09
};

/// Takes the option at `arguments[at]` and its value when it is a shared one.
///
/// @param at position of the option; moved on to its last word when it was taken
/// @return true when it was a shared option
/// @throws UsageError when the value is missing or unusable
bool takeSharedOption(std::span<const std::string_view> arguments, std::size_t& at, SharedOptions& options);

/// The value that follows the option at `arguments[at]`; moves `at` on to it. @throws UsageError without one
[[nodiscard]] std::string_view optionValue(std::span<const std::string_view> arguments, std::size_t& at);

/// The clock that the options ask for: frozen, or the machine's.
[[nodiscard]] std::unique_ptr<platform::Clock> makeClock(const SharedOptions& options);

/// The program's folder that the options ask for, or the one that the search finds, as a full path.
/// @throws UsageError when --folder names no folder
/// @throws std::filesystem::filesystem_error when the user's data folder cannot be made
[[nodiscard]] std::string chosenFolder(const SharedOptions& options);

}  // namespace mero::app
