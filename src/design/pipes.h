// SPDX-License-Identifier: MIT
/// The confirmation of a sub-panel: overflow with throttled outflow (combined object), drain (trench).
/// The two pages decide by different tests whether the pipes stay.
#pragma once

#include "calc/drain.h"
#include "design/sink.h"

namespace mero::design {

/// The storage coefficient of the fill with its pipes. @throws RuntimeError DivisionByZero, Overflow
template <Sink S>
void showStorageCoefficient(S& sink) {
    const data::DesignNumbers& numbers = sink.numbers();
    sink.show(
        Quantity::StorageCoefficient,
        calc::drain::storageCoefficient({.inner_diameter_mm = numbers.txtPrumTroubVnit,
                                         .outer_diameter_mm = numbers.txtPrumTroubVnej,
                                         .count = numbers.txtPocetPotrubi},
                                        numbers.txtPorVyplne, numbers.txtSirkaRyhy, numbers.txtVyskaRyhy));
}

/// Combined object: without a throttled outflow, or without a storage coefficient, there is no overflow.
/// @throws RuntimeError DivisionByZero when the trench has no porosity or no section, Overflow
template <Sink S>
void confirmPipes(OfType<FacilityType::SwaleTrench> /*type*/, S& sink) {
    const data::DesignNumbers& numbers = sink.numbers();
    sink.clearResults();
    sink.show(Quantity::ThrottledOutflow,
              calc::drain::throttledOutflow(numbers.RedukovanaPlocha, numbers.txtSpecDrenOdtok));
    if (numbers.Q_dr != 0.0F) {
        showStorageCoefficient(sink);
    }
    sink.closePipes(numbers.Q_dr != 0.0F && numbers.s_RR != 0.0F);
}

/// Trench: pipes without a diameter are no drain, but their storage coefficient stays.
/// @throws RuntimeError DivisionByZero when the trench has no porosity or no section, Overflow
template <Sink S>
void confirmPipes(OfType<FacilityType::Trench> /*type*/, S& sink) {
    const data::DesignNumbers& numbers = sink.numbers();
    showStorageCoefficient(sink);
    sink.closePipes(numbers.txtPrumTroubVnej != 0.0F && numbers.txtPrumTroubVnit != 0.0F);
}

}  // namespace mero::design
