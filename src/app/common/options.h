// SPDX-License-Identifier: MIT
/// The options of `mero` and `mero-batch run`.
/// Both drive the forms, so they share the folder, the clock and the script.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/common/command_line.h"
#include "platform/clock.h"

namespace mero::app {

/// The colours of the window.
enum class Palette {
    System,  ///< as the desktop sets them
    Light,
    Dark,
};

struct RunOptions {
    /// --folder DIR, absolute, without a trailing separator; "" for the default folder
    std::string folder;
    std::optional<platform::DateTime> frozen_moment;  ///< --clock 2026-11-20T14:05:09
    std::string script;                               ///< a file, "-" for standard input, "" for none
    std::string project;                              ///< a project file to open, `mero` only
    Palette palette = Palette::System;                ///< --palette light|dark, `mero` only
    bool help = false;
    bool version = false;
};

/// How the script is passed.
enum class ScriptArgument {
    Plain,       ///< as the only argument that is no option (`mero-batch run`)
    WithOption,  ///< as --script SCRIPT (`mero`, which also has --palette and takes a project file)
};

/// @throws UsageError for unknown options, missing or bad values, more than one script
[[nodiscard]] RunOptions parseRunOptions(std::span<const std::string_view> arguments,
                                         ScriptArgument script_argument);

}  // namespace mero::app
