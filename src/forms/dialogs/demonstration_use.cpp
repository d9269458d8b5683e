// SPDX-License-Identifier: MIT
/// Follows demonstration values through the rain table.
#include "forms/dialogs/demonstration_use.h"

namespace mero::forms {

bool DemonstrationUse::isPickedDemonstration(const data::modPublicVariables& values) const {
    if (!(values.VybranaIntenzita > 0.0F)) {
        return false;
    }
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (values.IntenzitaDeste[row] == values.VybranaIntenzita &&
            values.DobaTrvani[row] == values.VybranaDoba) {
            return rows_[row];
        }
    }
    return picked_;
}

void DemonstrationUse::tableTaken(const data::modPublicVariables& values) {
    picked_ = isPickedDemonstration(values);
    rows_.fill(station_);
}

void DemonstrationUse::durationTyped(const data::modPublicVariables& values) {
    picked_ = isPickedDemonstration(values);
}

void DemonstrationUse::intensityTyped(const data::modPublicVariables& values, std::size_t row) {
    picked_ = isPickedDemonstration(values);
    rows_[row] = false;
}

bool DemonstrationUse::inUse(const data::modPublicVariables& values) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row] && values.IntenzitaDeste[row] != 0.0F) {
            return true;
        }
    }
    return isPickedDemonstration(values);
}

}  // namespace mero::forms
