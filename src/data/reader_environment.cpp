// SPDX-License-Identifier: MIT
/// Copies the environment without a few variables.
#include "data/reader_environment.h"

#include <unistd.h>

#include <algorithm>
#include <string_view>

namespace mero::data {
namespace {

bool changesTheLibrary(std::string_view variable) {
    return std::any_of(kLibraryVariables.begin(), kLibraryVariables.end(), [&](std::string_view name) {
        return variable.starts_with(name) && variable.substr(name.size()).starts_with('=');
    });
}

}  // namespace

std::vector<std::string> readerEnvironment() {
    std::vector<std::string> kept;
    for (char** variable = ::environ; variable != nullptr && *variable != nullptr; ++variable) {
        if (!changesTheLibrary(*variable)) {
            kept.emplace_back(*variable);
        }
    }
    return kept;
}

}  // namespace mero::data
