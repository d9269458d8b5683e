// SPDX-License-Identifier: MIT
/// Follows demonstration values through the rain table.
#include "forms/dialogs/demonstration_use.h"

namespace mero::forms {

bool DemonstrationUse::isPickedDemonstration(const data::modPublicVariables& values) const {
    if (!(values.VybranaIntenzita > 0.0F)) {
        return false;
    }
    for (std::size_t row = 0; row < rains_.rows.size(); ++row) {
        if (values.IntenzitaDeste[row] == values.VybranaIntenzita &&
            values.DobaTrvani[row] == values.VybranaDoba) {
            return rains_.rows[row];
        }
    }
    return rains_.picked;
}

void DemonstrationUse::tableTaken(const data::modPublicVariables& values) {
    rains_.picked = isPickedDemonstration(values);
    rains_.rows.fill(rains_.station);
}

void DemonstrationUse::durationTyped(const data::modPublicVariables& values) {
    rains_.picked = isPickedDemonstration(values);
}

void DemonstrationUse::intensityTyped(const data::modPublicVariables& values, std::size_t row) {
    rains_.picked = isPickedDemonstration(values);
    rains_.rows[row] = false;
}

bool DemonstrationUse::inUse(const data::modPublicVariables& values) const {
    for (std::size_t row = 0; row < rains_.rows.size(); ++row) {
        if (rains_.rows[row] && values.IntenzitaDeste[row] != 0.0F) {
            return true;
        }
    }
    return isPickedDemonstration(values);
}

}  // namespace mero::forms
