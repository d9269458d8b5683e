/// Parsing of the shared options.
/// Both "--folder DIR" and "--folder=DIR" are taken, as people expect.
#include "app/common/shared_options.h"

#include <filesystem>
#include <system_error>

#include "app/common/program_folder.h"

namespace mero::app {
namespace {

namespace fs = std::filesystem;

/// The value of option `name` at `at`, as "NAME VALUE" or "NAME=VALUE"; nothing when it is another option.
std::optional<std::string_view> valueOf(std::string_view name, std::span<const std::string_view> arguments,
                                        std::size_t& at) {
    const std::string_view argument = arguments[at];
    if (argument == name) {
        return optionValue(arguments, at);
    }
    if (argument.starts_with(name) && argument.substr(name.size()).starts_with('=')) {
        return argument.substr(name.size() + 1);
    }
    return std::nullopt;
}

}  // namespace

std::string_view optionValue(std::span<const std::string_view> arguments, std::size_t& at) {
    if (at + 1 >= arguments.size()) {
        throw UsageError("the option " + std::string(arguments[at]) + " needs a value");
    }
    return arguments[++at];
}

bool takeSharedOption(std::span<const std::string_view> arguments, std::size_t& at, SharedOptions& options) {
    if (const auto folder = valueOf("--folder", arguments, at)) {
        options.folder = std::string(*folder);
        return true;
    }
    if (const auto moment = valueOf("--clock", arguments, at)) {
        options.clock = platform::parseDateTime(*moment);
        if (!options.clock) {
            throw UsageError("--clock takes a date and time such as 2026-11-20T14:05:09, not \"" +
                             std::string(*moment) + "\"");
        }
        return true;
    }
    return false;
}

std::unique_ptr<platform::Clock> makeClock(const SharedOptions& options) {
    if (options.clock) {
        return std::make_unique<platform::FrozenClock>(*options.clock);
    }
    return std::make_unique<platform::SystemClock>();
}

std::string chosenFolder(const SharedOptions& options) {
    if (!options.folder) {
        return programFolder(folderEnvironment()).string();
    }
    std::error_code failure;
    const fs::path folder = fs::canonical(*options.folder, failure);
    if (failure || !fs::is_directory(folder, failure)) {
        throw UsageError("--folder names no folder: " + *options.folder);
    }
    return folder.string();
}

}  // namespace mero::app
