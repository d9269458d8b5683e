// SPDX-License-Identifier: MIT
/// Parses the options of `mero` and `mero-batch run`.
/// Only the script argument and the palette differ between them.
#include "app/common/options.h"

namespace mero::app {
namespace {

/// The forms append file names to the folder themselves, so it has no trailing separator.
std::string withoutTrailingSlash(std::string folder) {
    if (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    return folder;
}

Palette palette(const std::string& value) {
    if (value != "light" && value != "dark") {
        throw UsageError("neither light nor dark: " + value);
    }
    return value == "light" ? Palette::Light : Palette::Dark;
}

}  // namespace

RunOptions parseRunOptions(std::span<const std::string_view> arguments, ScriptArgument script_argument) {
    const bool window = script_argument == ScriptArgument::WithOption;
    RunOptions options;
    CommandLine line(arguments);
    while (const auto argument = line.next()) {
        if (*argument == "--folder") {
            options.folder = withoutTrailingSlash(existingFolder(line.value()));
        } else if (*argument == "--clock") {
            options.frozen_moment = dateAndTime(line.value());
        } else if (*argument == "--script" && window) {
            options.script = line.value();
        } else if (*argument == "--palette" && window) {
            options.palette = palette(line.value());
        } else if (*argument == "--help" || *argument == "-h") {
            options.help = true;
        } else if (*argument == "--version") {
            options.version = true;
        } else if (argument->starts_with("-") && (window || *argument != "-")) {
            line.refuse();
        } else if (window) {
            line.takeSingle(options.project, "project");
        } else if (!options.script.empty()) {
            throw UsageError("more than one script: " + std::string(*argument));
        } else {
            options.script = *argument;
        }
    }
    if (!options.project.empty() && !options.script.empty()) {
        throw UsageError("a script opens its project itself: " + options.project);
    }
    return options;
}

}  // namespace mero::app
