// SPDX-License-Identifier: MIT
/// Reads the variables of the XDG base directories. Relative paths in them are ignored, as that standard
/// asks.
#include "app/keeping/user_folders.h"

#include <cstdlib>

namespace mero::app {
namespace {

std::string absoluteVariable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr && *value == '/' ? std::string(value) : std::string();
}

/// The program's folder in one of the base directories.
std::string ownFolder(const char* variable, const char* below_home) {
    const std::string base = absoluteVariable(variable);
    if (!base.empty()) {
        return base + "/mero";
    }
    const std::string home = absoluteVariable("HOME");
    return home.empty() ? home : home + below_home + "/mero";
}

}  // namespace

std::string preferencesFile() {
    const std::string folder = ownFolder("XDG_CONFIG_HOME", "/.config");
    return folder.empty() ? folder : folder + "/mero.json";
}

std::string recoveryFolder() {
    const std::string folder = ownFolder("XDG_DATA_HOME", "/.local/share");
    return folder.empty() ? folder : folder + "/recovery";
}

}  // namespace mero::app
