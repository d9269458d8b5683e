// SPDX-License-Identifier: MIT
/// Delta debugging: removes pieces of half the script, of a quarter, and so on down to single lines.
#include "monkey/shrink.h"

#include <algorithm>
#include <cstddef>

namespace mero::monkey {
namespace {

Script without(const Script& script, std::size_t first, std::size_t count) {
    Script rest(script.begin(), script.begin() + static_cast<std::ptrdiff_t>(first));
    rest.insert(rest.end(),
                script.begin() + static_cast<std::ptrdiff_t>(std::min(first + count, script.size())),
                script.end());
    return rest;
}

/// Removes all pieces of that size that can be removed. @return true when any was
bool leaveOut(Script& script, std::size_t size, const std::function<bool(const Script&)>& shows) {
    bool any = false;
    // From the end, where most lines have no effect on the fault.
    for (std::size_t end = script.size(); end > 0;) {
        const std::size_t first = end > size ? end - size : 0;
        const Script shorter = without(script, first, end - first);
        if (shows(shorter)) {
            script = shorter;
            any = true;
        }
        end = first;
    }
    return any;
}

}  // namespace

Script shrink(Script script, const std::function<bool(const Script&)>& shows) {
    std::size_t size = std::max<std::size_t>(script.size() / 2, 1);
    while (!script.empty()) {
        const bool any = leaveOut(script, size, shows);
        if (size == 1 && !any) {
            break;
        }
        size = size > 1 ? size / 2 : 1;
    }
    return script;
}

}  // namespace mero::monkey
