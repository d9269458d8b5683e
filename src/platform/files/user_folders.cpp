// SPDX-License-Identifier: MIT
/// Reads the environment, as the base directory specification of desktops says.
#include "platform/files/user_folders.h"

#include <cstdlib>

namespace mero::platform {
namespace {

struct Place {
    const char* variable;
    const char* below_home;
};

Place placeOf(UserFolder kind) {
    switch (kind) {
        case UserFolder::Data:
            return {"XDG_DATA_HOME", "/.local/share"};
        case UserFolder::Config:
            return {"XDG_CONFIG_HOME", "/.config"};
        case UserFolder::State:
            break;
    }
    return {"XDG_STATE_HOME", "/.local/state"};
}

std::optional<std::string> fullPath(const char* variable) {
    const char* value = std::getenv(variable);
    if (value == nullptr || *value != '/') {
        return std::nullopt;
    }
    return value;
}

}  // namespace

std::optional<std::string> userFolder(UserFolder kind) {
    const Place place = placeOf(kind);
    if (const auto folder = fullPath(place.variable)) {
        return *folder + "/mero";
    }
    if (const auto home = fullPath("HOME")) {
        return *home + place.below_home + "/mero";
    }
    return std::nullopt;
}

}  // namespace mero::platform
