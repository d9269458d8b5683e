// SPDX-License-Identifier: MIT
/// The options that the window and the program without a window share.
/// An unusable argument is told in one line.
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace mero::app {

/// An argument that cannot be used; what() says which and why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The colours of the window.
enum class Palette {
    System,  ///< those of the desktop
    Light,
    Dark,
};

struct RunOptions {
    std::string folder;                               ///< --folder DIR, absolute; "" for the default folder
    std::optional<platform::DateTime> frozen_moment;  ///< --clock 2026-11-20T14:05:09
    std::string script;                               ///< a file, "-" for standard input, "" for none
    Palette palette = Palette::System;                ///< --palette light|dark, of the window only
    bool help = false;
    bool version = false;
};

/// How the script is named among the arguments. The window's own options go with `WithOption`.
enum class ScriptArgument {
    Plain,       ///< the one argument that is no option
    WithOption,  ///< --script SCRIPT
};

/// @throws UsageError for unknown options, missing or bad values, superfluous arguments
[[nodiscard]] RunOptions parseRunOptions(std::span<const std::string_view> arguments,
                                         ScriptArgument script_argument);

}  // namespace mero::app
