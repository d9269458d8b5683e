// SPDX-License-Identifier: MIT
/// Combined object of a swale and a trench.
/// The swale's starting area is live; the design follows the calculate button.
#pragma once

#include "design/balances.h"
#include "design/sink.h"
#include "design/swale.h"
#include "platform/numbers/checked.h"

namespace mero::design {

/// The starting area; the other results are cleared. Without a drained area nothing changes.
template <Sink S>
void calculateArea(OfType<FacilityType::SwaleTrench> /*type*/, S& sink) {
    if (!storeStartingArea(sink)) {
        return;
    }
    sink.clear(Quantity::StorageVolume);
    sink.clear(Quantity::TrenchLength);
    sink.clear(Quantity::SwaleWidth);
    sink.clear(Quantity::SwaleDepth);
    sink.clear(Quantity::EmptyingTime);
    sink.show(Quantity::InfiltrationArea, sink.numbers().txtVsakPlocha);
}

/// The swale's volume first, then the trench that takes what the swale does not hold.
/// @throws RuntimeError DivisionByZero when the trench takes nothing or has no width, Overflow
template <Sink S>
void calculateDesign(OfType<FacilityType::SwaleTrench> /*type*/, S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    const auto rains = sink.rains();
    if (!sink.pipesTicked()) {
        sink.show(Quantity::ThrottledOutflow, 0.0F);
        sink.show(Quantity::StorageCoefficient, numbers.txtPorVyplne);
    }
    const calc::CriticalRain volume =
        calc::swale::storageVolume(swaleBalance(numbers, numbers.txtSoucFiltrPruleh), rains);
    pick(numbers, volume);
    sink.show(Quantity::StorageVolume, numbers::toSingle(volume.maximum));
    if (numbers.txtVsakPlocha <= 0.0F) {
        sink.tell(VerdictId::InfiltrationAreaMissing);
    } else {
        sink.show(Quantity::WaterDepth, calc::swale::pondingDepth(numbers.txtObjAkum, numbers.txtVsakPlocha));
    }

    const calc::CriticalRain length = calc::swale_trench::trenchLength(swaleTrenchBalance(numbers), rains);
    pick(numbers, length);
    sink.show(Quantity::TrenchLength, numbers::toSingle(length.maximum));

    numbers.txtSirkaPrulehu = numbers.txtSirkaRyhy;
    if (numbers.txtDelkaRyhy > 0.0F) {
        sink.show(Quantity::SwaleDepth,
                  calc::swale_trench::swaleDepth(numbers.txtObjAkum, numbers.txtDelkaRyhy,
                                                 numbers.txtSirkaPrulehu));
        sink.show(Quantity::SwaleWidth, numbers.txtSirkaPrulehu);
        const double designed_m2 =
            calc::swale_trench::designedArea(numbers.txtDelkaRyhy, numbers.txtSirkaPrulehu);
        const bool fits = calc::swale_trench::judgeArea(designed_m2, numbers.txtVsakPlocha) ==
                          calc::swale_trench::AreaVerdict::Sufficient;
        sink.tell(fits ? VerdictId::SwaleTrenchAreaSufficient : VerdictId::SwaleTrenchAreaInsufficient);
    }
    sink.show(Quantity::EmptyingTime,
              calc::swale::emptyingTimeHours(numbers.txtHloubkaPrulehu, numbers.txtSoucFiltrPruleh));
    sink.complete();
}

}  // namespace mero::design
