// SPDX-License-Identifier: MIT
/// Names of the files within the user's folders.
#include "app/keeping/user_folders.h"

#include "platform/files/user_folders.h"

namespace mero::app {
namespace {

using platform::UserFolder;

std::string inFolder(UserFolder kind, const char* name) {
    const auto folder = platform::userFolder(kind);
    return folder ? *folder + name : std::string();
}

}  // namespace

std::string preferencesFile() {
    return inFolder(UserFolder::Config, "/mero.json");
}

std::string recoveryFolder() {
    return inFolder(UserFolder::Data, "/recovery");
}

}  // namespace mero::app
