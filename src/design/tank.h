// SPDX-License-Identifier: MIT
/// Infiltration tank: required storage against the volume of its dimensions, then the infiltration flow
/// proof.
#pragma once

#include "design/balances.h"
#include "design/sink.h"
#include "platform/numbers/checked.h"

namespace mero::design {

/// The boxes are written when all numbers are known. A tank that is too small ends the design.
/// @throws RuntimeError InvalidCall when the sides cut each other below the bottom, Overflow
template <Sink S>
void calculateDesign(OfType<FacilityType::Tank> /*type*/, S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    const auto rains = sink.rains();
    numbers.txtVsakTok = calc::tank::infiltrationFlow(numbers.txtSpecMeroIntenz, numbers.RedukovanaPlocha);
    const calc::CriticalRain storage =
        calc::tank::requiredStorage(tankBalance(numbers, numbers.txtVsakTok), rains);
    pick(numbers, storage);
    numbers.txtObjAkum = numbers::toSingle(storage.maximum);

    const float depth_m = numbers.txtHloubkaNadrz;
    const float slope = numbers.txtSklonSvahuNadrz;
    sink.show(Quantity::TankTopLength, calc::tank::topSide(numbers.txtDelkaDnaNadrz, depth_m, slope));
    sink.show(Quantity::TankTopWidth, calc::tank::topSide(numbers.txtSirkaDnaNadrz, depth_m, slope));
    const calc::tank::Shape shape{.bottom_length_m = numbers.txtDelkaDnaNadrz,
                                  .bottom_width_m = numbers.txtSirkaDnaNadrz,
                                  .top_length_m = numbers.tank_top_length_m,
                                  .top_width_m = numbers.tank_top_width_m,
                                  .depth_m = depth_m};
    numbers.txtVypObjNadrz = calc::tank::volume(shape);
    sink.show(Quantity::InfiltrationFlow, numbers.txtVsakTok);
    sink.show(Quantity::StorageVolume, numbers.txtObjAkum);
    sink.show(Quantity::TankVolume, numbers.txtVypObjNadrz);

    if (calc::tank::judgeVolume(numbers.txtVypObjNadrz, numbers.txtObjAkum) ==
        calc::tank::VolumeVerdict::TooSmall) {
        sink.tell(VerdictId::TankVolumeTooSmall);
        return;
    }
    sink.tell(VerdictId::TankVolumeSufficient);
    const double mean_flow_m3_s = calc::tank::meanInfiltrationFlow(
        shape, calc::tank::effectiveFiltration(numbers.txtSoucFiltrace, sink.upstreamSettling()));
    const bool proven = calc::tank::judgeInfiltration(mean_flow_m3_s, numbers.txtVsakTok) ==
                        calc::tank::InfiltrationVerdict::Proven;
    sink.tell(proven ? VerdictId::TankInfiltrationProven : VerdictId::TankInfiltrationExceeded);
    sink.complete();
}

}  // namespace mero::design
