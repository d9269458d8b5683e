// SPDX-License-Identifier: MIT
/// Finds controls by name.
/// A linear search is fast enough: only scripts and tests look controls up.
#include "platform/controls/form.h"

#include <algorithm>
#include <utility>

namespace mero::platform {

Form::Form(std::string name, std::string title)
    : Control(*this, std::move(name), false), title_(std::move(title)) {}

void Form::userCloses() const {
    beforeUserActs();
    if (close_requested) {
        close_requested();
    }
}

Control* Form::find(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [name](const Control* control) { return control->name() == name; });
    return found == controls_.end() ? nullptr : *found;
}

}  // namespace mero::platform
