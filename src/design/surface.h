// SPDX-License-Identifier: MIT
/// Surface infiltration: its area is in balance with the picked rain.
#pragma once

#include "calc/surface_infiltration.h"
#include "design/sink.h"

namespace mero::design {

/// The required area. Without a design rain the area is 0 and no type stays chosen.
/// @throws RuntimeError DivisionByZero when the soil takes exactly what the rain brings, Overflow
template <Sink S>
void calculateArea(OfType<FacilityType::Surface> /*type*/, S& sink) {
    data::DesignNumbers& numbers = sink.numbers();
    if (numbers.VybranaIntenzita <= 0.0F) {
        sink.tell(VerdictId::DesignRainMissing);
        numbers.txtVsakPlocha = 0.0F;
        sink.abandonType();
    } else {
        numbers.txtVsakPlocha = calc::surface::infiltrationArea(
            numbers.RedukovanaPlocha, numbers.txtSoucFiltrace, numbers.VybranaIntenzita);
    }
    sink.show(Quantity::InfiltrationArea, numbers.txtVsakPlocha);
    sink.complete();
}

}  // namespace mero::design
