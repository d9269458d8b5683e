// SPDX-License-Identifier: MIT
/// Swales: the starting area follows from the soil, the design from the storage volume.
#pragma once

#include "design/balances.h"
#include "design/sink.h"
#include "platform/numbers/checked.h"

namespace mero::design {

/// Stores the infiltration area [m2] that the soil suggests; a combined object starts with the same.
/// @return false without a drained area: then nothing changes. @throws RuntimeError Overflow
template <Sink S>
[[nodiscard]] bool storeStartingArea(S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    if (numbers.RedukovanaPlocha <= 0.0F) {
        return false;
    }
    numbers.txtVsakPlocha =
        calc::swale::startingArea(numbers.RedukovanaPlocha, sink.soilOption(), numbers.txtVsakPlocha);
    return true;
}

/// Storage volume, ponding depth, emptying time.
/// @throws RuntimeError DivisionByZero when there is no infiltration area, Overflow
template <Sink S>
void calculateDesign(OfType<FacilityType::Swale> /*type*/, S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    const auto rains = sink.rains();
    const calc::CriticalRain volume =
        calc::swale::storageVolume(swaleBalance(numbers, numbers.txtSoucFiltrace), rains);
    pick(numbers, volume);
    sink.show(Quantity::StorageVolume, numbers::toSingle(volume.maximum));
    sink.show(Quantity::WaterDepth, calc::swale::pondingDepth(numbers.txtObjAkum, numbers.txtVsakPlocha));
    if (numbers.txtSoucFiltrace > 0.0F) {
        sink.show(Quantity::EmptyingTime,
                  calc::swale::emptyingTimeHours(numbers.txtVyskaVzduti, numbers.txtSoucFiltrace));
    }
    sink.complete();
}

/// The starting area, then the design. Without a drained area nothing changes.
template <Sink S>
void calculateArea(OfType<FacilityType::Swale> type, S& sink) {
    if (!storeStartingArea(sink)) {
        return;
    }
    sink.clear(Quantity::StorageVolume);
    sink.show(Quantity::InfiltrationArea, sink.numbers().txtVsakPlocha);
    calculateDesign(type, sink);
}

}  // namespace mero::design
