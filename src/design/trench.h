// SPDX-License-Identifier: MIT
/// Trench, with or without a drain: its length from the critical rain, then volume, area and drain outflow.
#pragma once

#include "calc/inflow.h"
#include "design/balances.h"
#include "design/sink.h"
#include "platform/numbers/checked.h"

namespace mero::design::trench {

/// The infiltration area of a trench as long as is stored. @throws RuntimeError Overflow
template <Sink S>
void calculateArea(S& sink) {
    const data::DesignNumbers& numbers = sink.numbers();
    sink.show(
        Quantity::InfiltrationArea,
        calc::trench::infiltrationArea(numbers.txtVyskaRyhy, numbers.txtSirkaRyhy, numbers.txtDelkaRyhy));
}

/// Does the drain let out what flows in?
template <Sink S>
void judgeDrainOutflow(S& sink) {
    const data::DesignNumbers& numbers = sink.numbers();
    switch (calc::trench::judgeOutflow(numbers.drain_outflow_l_s, numbers.drain_inflow_l_s)) {
        case calc::trench::OutflowVerdict::NotMet:
            sink.tell(VerdictId::DrainOutflowNotMet);
            break;
        case calc::trench::OutflowVerdict::Met:
            sink.tell(VerdictId::DrainOutflowMet);
            break;
    }
}

/// @throws RuntimeError DivisionByZero when a metre of trench takes nothing, Overflow
template <Sink S>
void design(S& sink) {
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
    calculateArea(sink);
    if (sink.pipesTicked()) {
        judgeDrainOutflow(sink);
    }
    sink.complete();
}

}  // namespace mero::design::trench
