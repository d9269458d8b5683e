// SPDX-License-Identifier: MIT
/// Compares the window with the record of the last calculation.
#include "forms/calc/result_state.h"

#include <algorithm>

#include "design/quantity.h"

namespace mero::forms {
namespace {

using design::Quantity;

/// The result that only a calculation from its beginning to its end gives.
Quantity lastResult(FacilityType type) {
    return type == FacilityType::Surface ? Quantity::InfiltrationArea : Quantity::StorageVolume;
}

/// Is the result shown before there is a calculation?
bool standsAlone(FacilityType type, Quantity quantity) {
    return (type == FacilityType::SwaleTrench && quantity == Quantity::InfiltrationArea) ||
           (type == FacilityType::Trench && quantity == Quantity::StorageCoefficient);
}

bool isShown(const frmCalc& form, FacilityType type, Quantity quantity) {
    const platform::TextBox* box = form.resultBoxes().box(quantity, type);
    return box != nullptr && !box->text().empty();
}

}  // namespace

CalculationState calculationState(const frmCalc& form, FacilityType type) {
    const data::modPublicVariables& values = form.values();
    CalculationState state{.numbers = static_cast<const data::DesignNumbers&>(values),
                           .durations_min = values.DobaTrvani,
                           .intensities_l_s_ha = values.IntenzitaDeste,
                           .shaft_shape = form.ShaftShape};
    switch (type) {
        case FacilityType::Swale:
            state.soil_option = static_cast<std::int8_t>(selectedOption(form.optSelTypPudy2));
            break;
        case FacilityType::SwaleTrench:
            state.soil_option = static_cast<std::int8_t>(selectedOption(form.optSelTypPudy3));
            state.pipes_ticked = form.chkSelPretok[type].checked();
            break;
        case FacilityType::Trench:
            state.pipes_ticked = form.chkSelPretok[type].checked();
            break;
        case FacilityType::Shaft:
            state.sand_layer = !form.optSelTypPudy5[0].selected();
            break;
        case FacilityType::Tank:
            state.upstream_settling = form.chkPredUsaz.checked();
            break;
        case FacilityType::None:
        case FacilityType::Surface:
            break;
    }
    return state;
}

ResultState resultState(const frmCalc& form, FacilityType type) {
    const Calculation& last = form.record().last(type);
    if (last.end == CalculationEnd::Running) {
        return ResultState::Current;
    }
    const bool whole = isShown(form, type, lastResult(type));
    const bool any = std::ranges::any_of(design::resultBoxes(type), [&](const design::ResultBox& row) {
        return !standsAlone(type, row.quantity) && isShown(form, type, row.quantity);
    });
    if (!any) {
        return ResultState::None;
    }
    return whole && last.end == CalculationEnd::Done &&
                   sameInputs(type, last.state, calculationState(form, type))
               ? ResultState::Current
               : ResultState::Stale;
}

ResultState reportState(const frmCalc& form) {
    const FacilityType type = form.SelectedType;
    const ResultState shown = resultState(form, type);
    if (shown == ResultState::Current &&
        !sameResults(type, form.record().last(type).state, calculationState(form, type))) {
        return ResultState::Stale;
    }
    return shown;
}

}  // namespace mero::forms
