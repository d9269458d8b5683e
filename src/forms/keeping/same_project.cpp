// SPDX-License-Identifier: MIT
/// The description's own text stands in its box.
#include "forms/keeping/same_project.h"

#include "project/project.h"

namespace mero::forms {
namespace {

/// No station chosen yet means own values, which the rain dialog says when it opens.
bool isOwnValues(const std::string& station) {
    return station.empty() || station == project::reference().StaniceNazev.front();
}

}  // namespace

bool isSameProject(WindowState state, const WindowState& other) {
    state.knows_database = other.knows_database;
    state.texts.txtDetails = other.texts.txtDetails;
    if (isOwnValues(state.rain.VybranaStanice) && isOwnValues(other.rain.VybranaStanice)) {
        state.rain.VybranaStanice = other.rain.VybranaStanice;
    }
    return state == other;
}

}  // namespace mero::forms
