// SPDX-License-Identifier: MIT
/// Trench, with or without a drain: its length from the critical rain, then volume, area and drain outflow.
#pragma once

#include "calc/inflow.h"
#include "design/balances.h"
#include "design/sink.h"
#include "platform/numbers/checked.h"

namespace mero::design {

/// The infiltration area of a trench as long as is stored. @throws RuntimeError Overflow
template <Sink S>
void calculateArea(OfType<FacilityType::Trench> /*type*/, S& sink) {
    const data::DesignNumbers& numbers = sink.numbers();
    sink.show(
        Quantity::InfiltrationArea,
        calc::trench::infiltrationArea(numbers.txtVyskaRyhy, numbers.txtSirkaRyhy, numbers.txtDelkaRyhy));
}

/// @throws RuntimeError DivisionByZero when a metre of trench takes nothing, Overflow
template <Sink S>
void calculateDesign(OfType<FacilityType::Trench> type, S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    const auto rains = sink.rains();
    sink.show(Quantity::StorageCoefficient, sink.pipesTicked() ? numbers.s_RR : numbers.txtPorVyplne);
    const calc::trench::Balance balance = trenchBalance(numbers);
    const calc::CriticalRain length = calc::trench::requiredLength(balance, rains);
    pick(numbers, length);
    sink.show(Quantity::TrenchLength, numbers::toSingle(length.maximum));
    sink.show(Quantity::StorageVolume,
              calc::trench::storageVolume(balance, numbers.txtDelkaRyhy,
                                          {numbers.VybranaDoba, numbers.VybranaIntenzita}));

    sink.show(Quantity::DrainInflow, calc::inflow(numbers.RedukovanaPlocha, numbers.VybranaIntenzita));
    sink.show(Quantity::DrainOutflow, calc::trench::drainOutflow({.openings_cm2_m = numbers.txtVystupPlocha,
                                                                  .pipe_count = numbers.txtPocetPotrubi,
                                                                  .velocity_m_s = numbers.txtVystupRychlost},
                                                                 numbers.txtDelkaRyhy));
    calculateArea(type, sink);
    if (sink.pipesTicked()) {
        const bool met = calc::trench::judgeOutflow(numbers.drain_outflow_l_s, numbers.drain_inflow_l_s) ==
                         calc::trench::OutflowVerdict::Met;
        sink.tell(met ? VerdictId::DrainOutflowMet : VerdictId::DrainOutflowNotMet);
    }
    sink.complete();
}

}  // namespace mero::design
