// SPDX-License-Identifier: MIT
/// Reading the shared options.
/// Values follow their option as the next argument or behind "=".
#include "app/common/options.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace mero::app {
namespace {

class Arguments {
  public:
    explicit Arguments(std::span<const std::string_view> arguments) : rest_(arguments) {}

    [[nodiscard]] bool empty() const { return rest_.empty(); }

    /// Takes the next argument; a value behind "=" is put back for takeValue.
    std::string_view take() {
        std::string_view argument = rest_.front();
        rest_ = rest_.subspan(1);
        const std::size_t equals = argument.find('=');
        if (argument.starts_with("--") && equals != std::string_view::npos) {
            value_ = argument.substr(equals + 1);
            argument = argument.substr(0, equals);
        }
        return argument;
    }

    std::string_view takeValue(std::string_view option) {
        if (value_) {
            return *std::exchange(value_, std::nullopt);
        }
        if (rest_.empty()) {
            throw UsageError(std::string(option) + " needs a value");
        }
        const std::string_view value = rest_.front();
        rest_ = rest_.subspan(1);
        return value;
    }

    void requireNoValue(std::string_view option) const {
        if (value_) {
            throw UsageError(std::string(option) + " takes no value");
        }
    }

  private:
    std::span<const std::string_view> rest_;
    std::optional<std::string_view> value_;
};

std::string existingFolder(std::string_view value) {
    std::error_code failure;
    const std::filesystem::path folder = std::filesystem::absolute(value, failure).lexically_normal();
    if (failure || !std::filesystem::is_directory(folder, failure)) {
        throw UsageError("no such folder: " + std::string(value));
    }
    std::string text = folder.string();
    if (text.size() > 1 && text.ends_with('/')) {
        text.pop_back();
    }
    return text;
}

platform::DateTime moment(std::string_view value) {
    const auto parsed = platform::parseDateTime(value);
    if (!parsed) {
        throw UsageError("not a date and time as 2026-11-20T14:05:09: " + std::string(value));
    }
    return *parsed;
}

Palette palette(std::string_view value) {
    if (value != "light" && value != "dark") {
        throw UsageError("neither light nor dark: " + std::string(value));
    }
    return value == "light" ? Palette::Light : Palette::Dark;
}

}  // namespace

RunOptions parseRunOptions(std::span<const std::string_view> arguments, ScriptArgument script_argument) {
    RunOptions options;
    Arguments rest(arguments);
    while (!rest.empty()) {
        const std::string_view argument = rest.take();
        if (argument == "--folder") {
            options.folder = existingFolder(rest.takeValue(argument));
        } else if (argument == "--clock") {
            options.frozen_moment = moment(rest.takeValue(argument));
        } else if (argument == "--script" && script_argument == ScriptArgument::WithOption) {
            options.script = rest.takeValue(argument);
        } else if (argument == "--palette" && script_argument == ScriptArgument::WithOption) {
            options.palette = palette(rest.takeValue(argument));
        } else if (argument == "--help" || argument == "-h") {
            rest.requireNoValue(argument);
            options.help = true;
        } else if (argument == "--version") {
            rest.requireNoValue(argument);
            options.version = true;
        } else if ((argument.starts_with("-") && argument != "-") ||
                   script_argument == ScriptArgument::WithOption) {
            throw UsageError("unknown argument: " + std::string(argument));
        } else if (!options.script.empty()) {
            throw UsageError("more than one script: " + std::string(argument));
        } else {
            options.script = argument;
        }
    }
    return options;
}

}  // namespace mero::app
